#pragma once

#include "platform/Pictures.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// What is asked and said about palette files: saving, discarding, other windows' saves, the colour
// picker, pictures. Pure.

namespace tintra::SaveTexts {

inline constexpr std::string_view kSave = "Save";
inline constexpr std::string_view kSaveAs = "Save As…";
inline constexpr std::string_view kDiscard = "Discard";
inline constexpr std::string_view kReplace = "Replace";
inline constexpr std::string_view kKeepBoth = "Keep Both";
inline constexpr std::string_view kRename = "Rename";
inline constexpr std::string_view kAddToPalette = "Add to Palette";
inline constexpr std::string_view kCancel = "Cancel";

inline constexpr std::string_view kNoSwatches = "There are no swatches to save.";
inline constexpr std::string_view kCancelled = "Saving was cancelled.";
inline constexpr std::string_view kMovedSource =
    "Save As… keeps both palettes. Replace overwrites what that window saved.";
inline constexpr std::string_view kUpdated = "Updated from another window’s save";
inline constexpr std::string_view kColourPicker = "the system colour picker";
inline constexpr std::string_view kInstallNote =
    "It will appear in every application's colour picker, and in ~/Library/Colors.";
inline constexpr std::string_view kInstallOnce =
    "Tintra installs colour lists here, where every colour picker on this Mac can use them. This "
    "is asked once.";
inline constexpr std::string_view kListExists =
    "A list with that name is already in the colour picker. Replacing it moves the old one to the "
    "Trash.";
inline constexpr std::string_view kCopyBeside = "The copy goes beside the original, in its folder.";
inline constexpr std::string_view kCopyInPicker =
    "The copy goes into the colour picker beside the original.";
inline constexpr std::string_view kChooseFolder =
    "Choose a folder of palette files. Tintra only reads it.";
inline constexpr std::string_view kAlreadyWatched = "That folder is already being watched";
inline constexpr std::string_view kPaletteExists =
    "A palette with that name is already there. Replacing it moves the old one to the Trash.";
inline constexpr std::string_view kOldListInTrash = " · the old list is in the Trash";

/// "Save changes to Brand?"; none for an untitled palette.
std::string saveChangesTitle(const std::optional<std::string>& name);
/// `home`: where saving would put the palette, none for nowhere yet; `action`: "quitting".
std::string discardText(std::size_t swatches, std::string_view home, std::string_view action);
/// `file`: its name. For the question about discarding.
std::string alphaCountText(std::string_view file, std::size_t translucent);
/// `extension`: of the file, without a point. For saving back; of many names the first are told.
std::string alphaNamesText(std::string_view extension, std::span<const std::string> translucent);

std::string movedSourceTitle(std::string_view name);
std::string noSuchFormatText(std::string_view name);
std::string neverWrittenText(std::string_view name);
std::string savedToPickerText(std::string_view name);
/// `format`: its title.
std::string nothingToWriteText(std::string_view format);
std::string savedText(std::string_view file);
std::string exportedText(std::string_view file);
/// A file that could not be saved, moved or renamed, and why: "Brand.ase could not be saved: …".
std::string couldNotText(std::string_view file, std::string_view done, std::string_view why);

std::string openedElsewhereText(std::string_view name);
std::string emptyText(std::string_view name);
std::string unreadableText(std::string_view name);
std::string alreadyThereText(std::string_view name);
std::string couldNotDuplicateText(std::string_view name);

std::string duplicateTitle(std::string_view name);
std::string duplicatedText(std::string_view name, std::string_view as);
std::string renameTitle(std::string_view name);
std::string trashedText(std::string_view file);
/// When a watched folder cannot be read any more.
std::string chooseAgainText(std::string_view nickname);

/// When the palette is one list of the colour picker and is to go there under another name.
std::string renameListTitle(std::string_view from, std::string_view to);
std::string renameListText(std::string_view from);
/// `program`: "GIMP 2.10".
std::string installForTitle(std::string_view program);
std::string installedText(std::string_view name, std::string_view program);
std::string replaceTitle(std::string_view name);

std::string addColoursTitle(std::size_t colours);
std::string addColoursText(std::size_t held);
std::string nothingToExtractText(std::string_view picture);
std::string noImageText(std::string_view picture, const PictureError& error);

} // namespace tintra::SaveTexts
