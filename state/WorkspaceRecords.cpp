#include "state/WorkspaceRecords.h"

#include "platform/DefaultsStore.h"

#include <utility>

namespace tintra {

std::optional<std::string> WorkspaceRecords::read(std::string_view key) {
    auto text = defaults_.data(key);
    if (text) stored_.insert_or_assign(std::string(key), *text);
    return text;
}

void WorkspaceRecords::write(std::string_view key, std::string text) {
    const auto known = stored_.find(key);
    if (known != stored_.end() && known->second == text) return;
    stored_.insert_or_assign(std::string(key), text);
    defaults_.set(key, std::move(text));
}

void WorkspaceRecords::remove(std::string_view key) {
    stored_.erase(std::string(key));
    defaults_.remove(key);
}

void WorkspaceRecords::setAside(std::string_view key) {
    stored_.erase(std::string(key));
    defaults_.setAside(key);
}

void WorkspaceRecords::setExtra(const Uuid& window, const StoredWorkspace& record) {
    extras_.insert_or_assign(window, encodedWorkspace(record));
}

void WorkspaceRecords::writeExtras(std::span<const Uuid> order) {
    std::string list = "[";
    for (const auto& window : order) {
        if (list.size() > 1) list += ',';
        list += extras_.at(window);
    }
    list += ']';
    write(kExtrasKey, std::move(list));
}

} // namespace tintra
