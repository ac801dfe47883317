#include "palettes/FileNames.h"
#include "palettes/PaletteFile.h"
#include "palettes/PaletteStore.h"
#include "palettes/library/NamedFiles.h"
#include "palettes/library/PaletteList.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

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

FileError taken() {
    return {errorOf(EEXIST).why, true};
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
    if (isThere(to)) return taken();
    if (auto error = act(entry.url, to)) return error;
    const auto beside = besides(entry);
    if (!beside) return std::nullopt;
    auto besideTo = to;
    besideTo.replace_extension("gpl");
    auto error = act(*beside, besideTo);
    if (error) undo(to);
    return error;
}

std::optional<FileError> duplicateFiles(const PaletteEntry& entry, const fs::path& to) {
    return actOnBoth(entry, to, copyFile, [](const fs::path& copy) {
        std::error_code ignored;
        fs::remove(copy, ignored);
    });
}

std::optional<FileError> renameFiles(const PaletteEntry& entry, const fs::path& to) {
    return actOnBoth(entry, to, moveFile,
                     [&](const fs::path& moved) { moveFile(moved, entry.url); });
}

/// All or nothing; the first is the entry's own.
using Trashed = std::variant<std::vector<TrashedFile>, FileError>;

Trashed trashFiles(const PaletteEntry& entry, Trash& trash) {
    const auto beside = besides(entry);
    auto first = trash.trash(entry.url);
    if (auto* error = std::get_if<FileError>(&first)) return std::move(*error);
    std::vector<TrashedFile> files{std::get<TrashedFile>(std::move(first))};
    if (!beside) return files;
    auto second = trash.trash(*beside);
    if (auto* file = std::get_if<TrashedFile>(&second)) files.push_back(std::move(*file));
    return files;
}

/// Files that were put into a folder, and those that made way for them.
struct Put {
    PaletteStore::Saved saved;
    std::vector<TrashedFile> replaced;
};

std::variant<Put, FileError> putFiles(const fs::path& folder, std::string name,
                                      std::span<const ExportFormat> formats,
                                      const PaletteStore::Content& content,
                                      PaletteStore::Clash clash, Trash& trash) {
    std::vector<NewFile> files;
    for (const auto format : formats) {
        auto written = PaletteExport::data(format, content.colors, content.names, name, {});
        if (!written) return FileError{"There are no colours to write."};
        files.push_back({std::string(fileExtension(format)), std::move(*written)});
    }
    if (clash == PaletteStore::Clash::keepBoth) name = freeName(folder, name, files);
    auto put = putNamedFiles(folder, name, files, trash);
    if (auto* error = std::get_if<FileError>(&put)) return std::move(*error);
    auto& replaced = std::get<std::vector<TrashedFile>>(put);
    const auto file = namedFile(folder, name, "." + files.front().extension);
    return Put{{name, file, !replaced.empty()}, std::move(replaced)};
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

PaletteStore::Content PaletteStore::Content::of(std::span<const PaletteFile::Swatch> swatches) {
    Content content;
    for (const auto& swatch : swatches) {
        content.colors.push_back(swatch.color);
        content.names.push_back(swatch.name);
    }
    return content;
}

void PaletteStore::save(Content content, std::string_view as, Clash clash, SaveDone then) {
    put(colorsDirectory(), as, kColourPickerFormats, std::move(content), clash, std::move(then));
}

void PaletteStore::findInstallTargets() {
    fileWork_.run(
        [all = surroundings_.installTargets]() mutable {
            std::error_code ignored;
            std::erase_if(
                all, [&](const auto& target) { return !fs::is_directory(target.folder, ignored); });
            return std::move(all);
        },
        [this](std::vector<InstallTarget> present) {
            if (std::exchange(installTargets_, std::move(present)) != installTargets_)
                list_->changed();
        });
}

void PaletteStore::install(Content content, std::string_view as, const InstallTarget& into,
                           Clash clash, SaveDone then) {
    put(into.folder, as, kDrawingProgramFormats, std::move(content), clash, std::move(then));
}

void PaletteStore::put(const fs::path& folder, std::string_view as,
                       std::span<const ExportFormat> formats, Content content, Clash clash,
                       SaveDone then) {
    fileWork_.run(
        [folder, name = fitFileName(as), formats, content = std::move(content), clash,
         &trash = surroundings_.trash]() -> std::variant<Put, FileError> {
            if (folder.empty()) return errorOf(ENOENT);
            if (name.empty()) return FileError{*whyUnfit("")};
            return putFiles(folder, name, formats, content, clash, trash);
        },
        [this, folder, then = std::move(then)](const std::variant<Put, FileError>& result) {
            if (const auto* error = std::get_if<FileError>(&result)) return then(*error);
            const auto& [saved, replaced] = std::get<Put>(result);
            noteTrashed(replaced);
            list_->rescan(folder);
            then(saved);
        });
}

fs::path PaletteStore::placeOfCopy(const PaletteEntry& of, std::string_view name) const {
    if (of.group == Group::system) return namedFile(colorsDirectory(), name, ".clr");
    return namedFile(of.url.parent_path(), name, of.url.extension().native());
}

void PaletteStore::duplicate(const PaletteEntry& entry, std::string_view name, Done then) {
    if (const auto why = whyUnfit(name)) return then(FileError{*why});
    if (entry.group == Group::system) return duplicateAsColourList(entry, name, std::move(then));
    const auto to = placeOfCopy(entry, name);
    fileWork_.run([entry, to] { return duplicateFiles(entry, to); },
                  [this, to, then = std::move(then)](const std::optional<FileError>& error) {
                      if (!error) list_->rescan(to.parent_path());
                      then(error);
                  });
}

void PaletteStore::duplicateAsColourList(const PaletteEntry& entry, std::string_view name,
                                         Done then) {
    fileWork_.run(
        [entry, to = placeOfCopy(entry, name), name = std::string(name),
         &trash = surroundings_.trash]() -> std::variant<Put, FileError> {
            if (isThere(to)) return taken();
            const auto read = entry.palette ? std::optional(entry.palette->swatches)
                                            : PaletteFile::readNamed(entry.url);
            if (!read) return errorOf(ENOENT);
            return putFiles(to.parent_path(), name, kColourPickerFormats, Content::of(*read),
                            Clash::keepBoth, trash);
        },
        [this, then = std::move(then)](const std::variant<Put, FileError>& result) {
            if (const auto* error = std::get_if<FileError>(&result)) return then(*error);
            list_->rescan(colorsDirectory());
            then(std::nullopt);
        });
}

void PaletteStore::rename(const PaletteEntry& entry, std::string_view name, Done then) {
    if (const auto why = whyUnfit(name)) return then(FileError{*why});
    if (const auto error = whyFixed(entry)) return then(error);
    const auto to = namedFile(entry.url.parent_path(), name, entry.url.extension().native());
    if (to == entry.url) return then(std::nullopt);
    fileWork_.run([entry, to] { return renameFiles(entry, to); },
                  [this, to, then = std::move(then)](const std::optional<FileError>& error) {
                      if (!error) list_->rescan(to.parent_path());
                      then(error);
                  });
}

void PaletteStore::trash(const PaletteEntry& entry, TrashDone then) {
    if (const auto error = whyFixed(entry)) return then(*error);
    fileWork_.run([entry, &trash = surroundings_.trash] { return trashFiles(entry, trash); },
                  [this, key = entry.key(), then = std::move(then)](const Trashed& result) {
                      if (const auto* error = std::get_if<FileError>(&result)) return then(*error);
                      const auto& files = std::get<std::vector<TrashedFile>>(result);
                      noteTrashed(files);
                      list_->remove(key);
                      then(files.front());
                  });
}

void PaletteStore::noteTrashed(const std::vector<TrashedFile>& files) {
    if (files.empty()) return;
    trashed_.push_back(files.front());
    for (std::size_t i = 1; i < files.size(); ++i)
        companions_.push_back({files.front().inTrash, files[i]});
}

void PaletteStore::putBack(const TrashedFile& file, Done then) {
    std::vector<TrashedFile> beside;
    for (const auto& companion : companions_)
        if (companion.of == file.inTrash) beside.push_back(companion.file);
    fileWork_.run(
        [file, beside = std::move(beside), &trash = surroundings_.trash] {
            auto error = trash.putBack(file);
            if (error) return error;
            for (const auto& other : beside)
                trash.putBack(other);
            return error;
        },
        [this, back = file, then = std::move(then)](const std::optional<FileError>& error) {
            if (error) return then(error);
            std::erase(trashed_, back);
            std::erase_if(companions_,
                          [&](const Companion& companion) { return companion.of == back.inTrash; });
            list_->rescan(back.original.parent_path());
            then(std::nullopt);
        });
}

const std::vector<TrashedFile>& PaletteStore::trashedThisSession() const {
    return trashed_;
}

} // namespace tintra
