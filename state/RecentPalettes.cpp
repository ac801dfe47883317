#include "state/RecentPalettes.h"

#include "platform/DefaultsStore.h"
#include "platform/Services.h"
#include "state/Codec.h"
#include "state/Workspaces.h"

#include <algorithm>

namespace tintra {
namespace {

using Files = std::vector<std::filesystem::path>;

/// Nothing for a record that is no list.
std::optional<Files> decodedFiles(std::string_view text) {
    const auto json = parsedJson(text);
    if (!json || !json->is_array()) return std::nullopt;
    Files files;
    for (const auto& one : *json) {
        const std::filesystem::path file = Codec<std::string>::decode(one).value_or("");
        if (file.empty() || std::ranges::find(files, file) != files.end()) continue;
        files.push_back(file);
        if (files.size() == RecentPalettes::kMost) break;
    }
    return files;
}

} // namespace

RecentPalettes::RecentPalettes(Services& services, const Workspaces& workspaces)
    : services_(services), workspaces_(workspaces) {}

void RecentPalettes::start() {
    if (const auto record = services_.defaults.data(kKey)) {
        if (auto files = decodedFiles(*record))
            files_ = *std::move(files);
        else
            services_.defaults.setAside(kKey);
    }
    order_ = QPropertyNotifier(workspaces_.order(), [this] { followWindows(); });
    followWindows();
}

void RecentPalettes::followWindows() {
    windows_.clear();
    for (const auto& id : workspaces_.order().value()) {
        const auto* window = workspaces_.state(id);
        if (!window) continue;
        windows_.emplace_back(window->attachment(), [this, window] {
            if (const auto file = window->currentPaletteURL()) remember(*file);
        });
    }
}

void RecentPalettes::remember(const std::filesystem::path& file) {
    auto files = files_.value();
    std::erase(files, file);
    files.insert(files.begin(), file);
    if (files.size() > kMost) files.resize(kMost);
    if (files == files_.value()) return;
    files_ = std::move(files);
    write();
}

void RecentPalettes::clear() {
    if (files_.value().empty()) return;
    files_ = Files();
    write();
}

void RecentPalettes::write() const {
    Json list = Json::array();
    for (const auto& file : files_.value())
        list.push_back(file.string());
    services_.defaults.set(kKey, jsonText(list));
}

} // namespace tintra
