#include "colour/ColorProfiles.h"

#include "platform/File.h"
#include "platform/Locations.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>
#include <map>
#include <system_error>

namespace tintra {

namespace {

namespace fs = std::filesystem;

/// Profiles are a few megabytes; anything far larger in their folder is something else.
constexpr std::uint64_t kLargestProfile = 64U << 20U;

bool hasProfileExtension(const fs::path& file) {
    const auto extension = asciiLowerCased(file.extension().string());
    return extension == ".icc" || extension == ".icm";
}

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code failed;
    for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed))
        entries.push_back(at->path());
    // The order that a folder is listed in is chance; which of two namesakes wins must not be.
    std::sort(entries.begin(), entries.end());
    return entries;
}

std::shared_ptr<const ColourSpace> openFile(const fs::path& path) {
    const auto content = readFile(path, kLargestProfile);
    const auto* bytes = std::get_if<Bytes>(&content);
    return bytes == nullptr ? nullptr : ColourSpace::fromIccProfile(*bytes);
}

/// Adds a folder for colour profiles and the folders directly in it.
void addWithSubfolders(std::vector<fs::path>& folders, const fs::path& folder) {
    folders.push_back(folder);
    std::error_code ignored;
    for (const auto& entry : entriesOf(folder))
        if (fs::is_directory(entry, ignored)) folders.push_back(entry);
}

} // namespace

ColorProfiles& ColorProfiles::shared() {
    static ColorProfiles profiles(searchPaths);
    return profiles;
}

ColorProfiles::ColorProfiles(Folders folders)
    : folders_(std::move(folders)), rgbSpace_(ColourSpace::sRGB().get()) {}

std::vector<fs::path> ColorProfiles::searchPaths() {
    const auto home = homeFolder();
    std::vector<fs::path> folders{
        "/System/Library/ColorSync/Profiles",
        "/Library/ColorSync/Profiles",
        home / "Library/ColorSync/Profiles",
        "/Library/Application Support/Adobe/Color/Profiles",
        "/Library/Application Support/Adobe/Color/Profiles/Recommended",
    };
    addWithSubfolders(folders, home / ".color/icc");
    for (const auto& data : dataFolders())
        addWithSubfolders(folders, data / "color/icc");
    return folders;
}

const std::vector<ColorProfiles::NamedSpace>& ColorProfiles::rgbSpaces() {
    static const auto spaces = [] {
        std::vector<NamedSpace> list;
        for (auto& space :
             {ColourSpace::sRGB(), ColourSpace::displayP3(), ColourSpace::adobeRGB1998(),
              ColourSpace::genericRGB(), ColourSpace::ituRBT2020(), ColourSpace::rommRGB(),
              ColourSpace::dciP3(), ColourSpace::ituRBT709()})
            if (space) list.push_back({space->localizedName(), space});
        return list;
    }();
    return spaces;
}

void ColorProfiles::selectRGB(std::string_view name) {
    // The others are made when one of them is asked for.
    if (const auto usual = ColourSpace::sRGB(); usual && usual->localizedName() == name) {
        selectedRGB_ = name;
        rgbSpace_.store(usual.get(), std::memory_order_release);
        return;
    }
    const auto& spaces = rgbSpaces();
    const auto found = std::find_if(spaces.begin(), spaces.end(),
                                    [name](const auto& each) { return each.name == name; });
    const auto& chosen = found == spaces.end() ? spaces.front() : *found;
    selectedRGB_ = chosen.name;
    rgbSpace_.store(chosen.space.get(), std::memory_order_release);
}

const ColourSpace& ColorProfiles::cmykSpace() const {
    const auto* chosen = cmykSpace_.load(std::memory_order_acquire);
    return chosen == nullptr ? *ColourSpace::deviceCMYK() : *chosen;
}

std::shared_ptr<const ColourSpace> ColorProfiles::openProfile(std::string_view name) const {
    const auto found = std::find_if(cmykProfiles_.begin(), cmykProfiles_.end(),
                                    [name](const auto& each) { return each.name == name; });
    return found == cmykProfiles_.end() ? nullptr : openFile(found->path);
}

void ColorProfiles::selectCMYK(std::string_view name) {
    // The usual choice is at hand: no folder is read for it, which a start of the program would
    // wait for.
    std::shared_ptr<const ColourSpace> space;
    if (name != kDefaultCmyk) {
        loadIfNeeded();
        space = openProfile(name);
    }
    if (!space) {
        selectedCMYK_ = kDefaultCmyk;
        cmykSpace_.store(nullptr, std::memory_order_release);
        return;
    }
    selectedCMYK_ = name;
    cmykSpace_.store(space.get(), std::memory_order_release);
    selectedSpaces_.push_back(std::move(space));
}

void ColorProfiles::loadIfNeeded() {
    if (loaded_) return;
    loaded_ = true;
    std::map<std::string, fs::path> found;
    for (const auto& folder : folders_()) {
        for (const auto& path : entriesOf(folder)) {
            if (!hasProfileExtension(path)) continue;
            const auto space = openFile(path);
            if (!space || space->model() != ColourModel::cmyk || !space->convertsBothWays())
                continue;
            found.emplace(space->localizedName(), path);
        }
    }
    for (const auto& [name, path] : found)
        cmykProfiles_.push_back({name, path});
    std::stable_sort(cmykProfiles_.begin(), cmykProfiles_.end(),
                     [](const auto& a, const auto& b) { return sortsBefore(a.name, b.name); });
}

std::string_view rawValue(LabIlluminant illuminant) {
    return illuminant == LabIlluminant::d50 ? "d50" : "d65";
}

std::optional<LabIlluminant> labIlluminant(std::string_view raw) {
    if (raw == "d50") return LabIlluminant::d50;
    if (raw == "d65") return LabIlluminant::d65;
    return std::nullopt;
}

} // namespace tintra
