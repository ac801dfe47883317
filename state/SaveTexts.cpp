#include "state/SaveTexts.h"

#include "platform/Unicode.h"
#include "state/NoticeTexts.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

namespace tintra::SaveTexts {

namespace {

/// So that a question about a large palette still fits on the screen.
constexpr std::size_t kNamesTold = 8;

} // namespace

std::string saveChangesTitle(const std::optional<std::string>& name) {
    return fmt::format("Save changes to {}?", name.value_or("this palette"));
}

std::string discardText(std::size_t swatches, std::string_view home, std::string_view action) {
    const bool one = swatches == 1;
    return fmt::format("The palette has {} that {} not saved to {}. {} will be lost by {}.",
                       counted(swatches, "swatch", "swatches"), one ? "is" : "are", home,
                       one ? "It" : "They", action);
}

std::string alphaCountText(std::string_view file, std::size_t translucent) {
    return fmt::format(
        "{} holds no alpha: {} will be saved opaque. Save As… a colour list keeps it.", file,
        translucent);
}

std::string alphaNamesText(std::string_view extension, std::span<const std::string> translucent) {
    const auto told = translucent.first(std::min(translucent.size(), kNamesTold));
    auto names = fmt::format("{}", fmt::join(told, ", "));
    if (told.size() < translucent.size())
        names += fmt::format(" and {} more", translucent.size() - told.size());
    return fmt::format(
        "{} holds no alpha: {} will be saved opaque. Save As… a colour list keeps it.",
        upperCased(extension), names);
}

std::string movedSourceTitle(std::string_view name) {
    return fmt::format("“{}” was saved from another window after this one loaded it.", name);
}

std::string noSuchFormatText(std::string_view name) {
    return fmt::format("{} can’t be written back · saved to the colour picker", name);
}

std::string neverWrittenText(std::string_view name) {
    return fmt::format("{} is never written back · saved to the colour picker", name);
}

std::string savedToPickerText(std::string_view name) {
    return fmt::format("Saved {} to the system colour picker", name);
}

std::string nothingToWriteText(std::string_view format) {
    return fmt::format("Nothing to write for {}", format);
}

std::string savedText(std::string_view file) {
    return fmt::format("Saved {}", file);
}

std::string exportedText(std::string_view file) {
    return fmt::format("Exported {}", file);
}

std::string couldNotText(std::string_view file, std::string_view done, std::string_view why) {
    return fmt::format("{} could not be {}: {}", file, done, why);
}

std::string openedElsewhereText(std::string_view name) {
    return fmt::format("{} opened in a new window, so this harmony stays", name);
}

std::string emptyText(std::string_view name) {
    return fmt::format("{} is empty", name);
}

std::string unreadableText(std::string_view name) {
    return fmt::format("{} could not be read", name);
}

std::string alreadyThereText(std::string_view name) {
    return fmt::format("“{}” is already there. Choose another name.", name);
}

std::string couldNotDuplicateText(std::string_view name) {
    return fmt::format("Could not duplicate {}", name);
}

std::string duplicateTitle(std::string_view name) {
    return fmt::format("Duplicate “{}” as", name);
}

std::string duplicatedText(std::string_view name, std::string_view as) {
    return fmt::format("Duplicated {} as {}", name, as);
}

std::string renameTitle(std::string_view name) {
    return fmt::format("Rename “{}” to", name);
}

std::string trashedText(std::string_view file) {
    return fmt::format("Moved {} to the Trash", file);
}

std::string chooseAgainText(std::string_view nickname) {
    return fmt::format("Choose “{}” again so Tintra can read it. It only reads.", nickname);
}

std::string renameListTitle(std::string_view from, std::string_view to) {
    return fmt::format("Rename “{}” to “{}”?", from, to);
}

std::string renameListText(std::string_view from) {
    return fmt::format("Rename moves the old list to the Trash. Keep Both leaves “{}” in the "
                       "colour picker as it is.",
                       from);
}

std::string installForTitle(std::string_view program) {
    return fmt::format("Install for {} as", program);
}

std::string installedText(std::string_view name, std::string_view program) {
    return fmt::format("Installed {} for {}", name, program);
}

std::string replaceTitle(std::string_view name) {
    return fmt::format("Replace “{}”?", name);
}

std::string addColoursTitle(std::size_t colours) {
    return fmt::format("Add {} to this palette?", counted(colours, "colour", "colours"));
}

std::string addColoursText(std::size_t held) {
    const bool one = held == 1;
    return fmt::format(
        "There {} already {} here. {} can stay, with the ones from this picture after {}.",
        one ? "is" : "are", counted(held, "colour", "colours"), one ? "It" : "They",
        one ? "it" : "them");
}

std::string nothingToExtractText(std::string_view picture) {
    return fmt::format("Nothing to extract from {}", picture);
}

std::string noImageText(std::string_view picture, const PictureError& error) {
    auto text = fmt::format("{} could not be read as an image", picture);
    // Of a file that is no picture there is nothing more to say.
    if (error.kind != PictureError::Kind::content) text += ": " + error.why;
    return text;
}

} // namespace tintra::SaveTexts
