#include "palettes/FileNames.h"
#include "palettes/PaletteFile.h"
#include "palettes/PaletteStore.h"
#include "palettes/library/NamedFiles.h"
#include "palettes/library/PaletteList.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

// What the store does with files: the lists of the colour picker, copies, names, the Trash.

namespace tintra {

namespace {

namespace fs = std::filesystem;
using Group = PaletteEntry::Group;

/// The programs that show the colour picker's lists on this system read the second.
constexpr std::array kColourPickerFormats{ExportFormat::clr, ExportFormat::gpl};
constexpr std::array kDrawingProgramFormats{ExportFormat::gpl};

FileError errorOf(int number) {
    return {std::generic_category().message(number)};
}

/// Why an entry's file may not be moved; nothing when it may.
std::optional<FileError> whyFixed(const PaletteEntry& entry) {
    if (entry.url.empty()) return errorOf(ENOENT);
    return entry.isEditable ? std::nullopt : std::optional(errorOf(EACCES));
}

fs::path namedFile(const fs::path& folder, std::string_view name, std::string_view extension) {
    std::string file(name);
    file += extension;
    return folder / file;
}

bool isThere(const fs::path& file) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(file, ignored));
}

/// The GIMP palette that stands beside a list of the colour picker.
std::optional<fs::path> besides(const PaletteEntry& entry) {
    if (entry.group != Group::colourPicker) return std::nullopt;
    auto file = entry.url;
    file.replace_extension("gpl");
    return isThere(file) ? std::optional(file) : std::nullopt;
}

std::optional<FileError> copyFile(const fs::path& from, const fs::path& to) {
    const auto content = readFile(from);
    if (const auto* error = std::get_if<FileError>(&content)) return *error;
    return writeFile(to, std::get<Bytes>(content), Existing::refuse);
}

std::optional<FileError> moveFile(const fs::path& from, const fs::path& to) {
    const auto error = renameWithoutReplacing(from, to);
    return error ? std::optional(FileError{error.message()}) : std::nullopt;
}

/// Does to an entry's file, and to the one beside it, what `act` does from a path to another; the
/// first is undone when the second fails.
template <class Act, class Undo>
std::optional<FileError> actOnBoth(const PaletteEntry& entry, const fs::path& to, Act act,
                                   Undo undo) {
    if (auto error = act(entry.url, to)) return error;
    const auto beside = besides(entry);
    if (!beside) return std::nullopt;
    auto besideTo = to;
    besideTo.replace_extension("gpl");
    auto error = act(*beside, besideTo);
    if (error) undo(to);
    return error;
}

} // namespace

const fs::path& PaletteStore::colorsDirectory() const {
    return surroundings_.colorsDirectory;
}

// Where the path is the access, access has always been granted.
std::optional<fs::path> PaletteStore::writableColorsFolder() const {
    if (colorsDirectory().empty()) return std::nullopt;
    return colorsDirectory();
}

bool PaletteStore::hasNamed(std::string_view name) const {
    return isThere(namedFile(colorsDirectory(), fitFileName(name), ".clr"));
}

std::optional<std::vector<PaletteFile::Swatch>>
PaletteStore::loadNamed(std::string_view name) const {
    return PaletteFile::readNamed(namedFile(colorsDirectory(), fitFileName(name), ".clr"));
}

std::variant<PaletteStore::Saved, FileError>
PaletteStore::save(std::span<const WashColor> colors,
                   std::span<const std::optional<std::string>> names, std::string_view as,
                   Clash clash) {
    if (colorsDirectory().empty()) return errorOf(ENOENT);
    return put(colorsDirectory(), as, kColourPickerFormats, colors, names, clash);
}

std::vector<InstallTarget> PaletteStore::installTargets() const {
    std::vector<InstallTarget> present;
    std::error_code ignored;
    std::ranges::copy_if(
        surroundings_.installTargets, std::back_inserter(present),
        [&](const InstallTarget& target) { return fs::is_directory(target.folder, ignored); });
    return present;
}

std::variant<PaletteStore::Saved, FileError>
PaletteStore::install(std::span<const WashColor> colors,
                      std::span<const std::optional<std::string>> names, std::string_view as,
                      const InstallTarget& into, Clash clash) {
    return put(into.folder, as, kDrawingProgramFormats, colors, names, clash);
}

std::variant<PaletteStore::Saved, FileError>
PaletteStore::put(const fs::path& folder, std::string_view as,
                  std::span<const ExportFormat> formats, std::span<const WashColor> colors,
                  std::span<const std::optional<std::string>> names, Clash clash) {
    auto name = fitFileName(as);
    if (name.empty()) return FileError{*whyUnfit("")};
    std::vector<NewFile> files;
    for (const auto format : formats) {
        auto content = PaletteExport::data(format, colors, names, name, {});
        if (!content) return FileError{"There are no colours to write."};
        files.push_back({std::string(fileExtension(format)), std::move(*content)});
    }
    if (clash == Clash::keepBoth) name = freeName(folder, name, files);
    auto put = putNamedFiles(folder, name, files, surroundings_.trash);
    if (auto* error = std::get_if<FileError>(&put)) return std::move(*error);
    const auto& replaced = std::get<std::vector<TrashedFile>>(put);
    noteTrashed(replaced);
    list_->rescan(folder);
    return Saved{name, namedFile(folder, name, "." + files.front().extension), !replaced.empty()};
}

fs::path PaletteStore::placeOfCopy(const PaletteEntry& of, std::string_view name) const {
    if (of.group == Group::system) return namedFile(colorsDirectory(), name, ".clr");
    return namedFile(of.url.parent_path(), name, of.url.extension().native());
}

std::optional<FileError> PaletteStore::duplicate(const PaletteEntry& entry, std::string_view name) {
    if (const auto why = whyUnfit(name)) return FileError{*why};
    const auto to = placeOfCopy(entry, name);
    if (isThere(to)) return errorOf(EEXIST);
    if (entry.group == Group::system) return duplicateAsColourList(entry, name);
    auto error = actOnBoth(entry, to, copyFile, [](const fs::path& copy) {
        std::error_code ignored;
        fs::remove(copy, ignored);
    });
    if (!error) list_->rescan(to.parent_path());
    return error;
}

std::optional<FileError> PaletteStore::duplicateAsColourList(const PaletteEntry& entry,
                                                             std::string_view name) {
    const auto palette = entry.url.empty() ? entry.palette : cache().warm(entry.url);
    if (palette == nullptr) return errorOf(ENOENT);
    std::vector<WashColor> colors;
    std::vector<std::optional<std::string>> names;
    for (const auto& swatch : palette->swatches) {
        colors.push_back(swatch.color);
        names.push_back(swatch.name);
    }
    auto saved = save(colors, names, name, Clash::keepBoth);
    if (auto* error = std::get_if<FileError>(&saved)) return std::move(*error);
    return std::nullopt;
}

std::optional<FileError> PaletteStore::rename(const PaletteEntry& entry, std::string_view name) {
    if (const auto why = whyUnfit(name)) return FileError{*why};
    if (auto error = whyFixed(entry)) return error;
    const auto to = namedFile(entry.url.parent_path(), name, entry.url.extension().native());
    if (to == entry.url) return std::nullopt;
    const auto from = entry.url;
    auto error =
        actOnBoth(entry, to, moveFile, [&](const fs::path& moved) { moveFile(moved, from); });
    if (!error) list_->rescan(to.parent_path());
    return error;
}

std::variant<TrashedFile, FileError> PaletteStore::trash(const PaletteEntry& entry) {
    if (auto error = whyFixed(entry)) return std::move(*error);
    const auto key = entry.key(); // the entry may be one of the list
    const auto beside = besides(entry);
    auto trashed = surroundings_.trash.trash(entry.url);
    if (std::holds_alternative<FileError>(trashed)) return trashed;
    std::vector<TrashedFile> files{std::get<TrashedFile>(trashed)};
    if (beside) {
        auto second = surroundings_.trash.trash(*beside);
        if (auto* file = std::get_if<TrashedFile>(&second)) files.push_back(std::move(*file));
    }
    noteTrashed(files);
    list_->remove(key);
    return trashed;
}

void PaletteStore::noteTrashed(const std::vector<TrashedFile>& files) {
    if (files.empty()) return;
    trashed_.push_back(files.front());
    for (std::size_t i = 1; i < files.size(); ++i)
        companions_.push_back({files.front().inTrash, files[i]});
}

std::optional<FileError> PaletteStore::putBack(const TrashedFile& file) {
    const auto back = file; // it may be one of `trashed_`
    if (auto error = surroundings_.trash.putBack(back)) return error;
    std::erase(trashed_, back);
    std::erase_if(companions_, [&](const Companion& companion) {
        if (companion.of != back.inTrash) return false;
        surroundings_.trash.putBack(companion.file);
        return true;
    });
    list_->rescan(back.original.parent_path());
    return std::nullopt;
}

const std::vector<TrashedFile>& PaletteStore::trashedThisSession() const {
    return trashed_;
}

} // namespace tintra
