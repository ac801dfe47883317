#include "ui/library/LibraryNote.h"

#include "state/SaveTexts.h"
#include "ui/library/LibraryLayout.h"
#include "ui/shared/Text.h"

namespace tintra {
namespace {

QString titleOf(ColourMatch match) {
    switch (match) {
    case ColourMatch::exact:
        return worded("Exact");
    case ColourMatch::close:
        return worded("Close");
    case ColourMatch::hue:
        return worded("Same Hue");
    }
    return {};
}

LibraryNote noteOfNothing(const LibraryModel& model) {
    const auto& listing = model.listing();
    const auto text = oneLine(model.text().value(), 60);
    LibraryNote note{
        .about = LibraryNote::About::nothingFound, .title = {}, .text = {}, .action = {}};
    if (!listing.color) {
        note.title = worded("Nothing is called “%1”").arg(text);
        note.text = worded("No palette and no swatch has that in its name.");
        return note;
    }
    note.title = worded("Nothing holds %1").arg(text);
    note.text = shown(explanation(model.match()));
    if (const auto& wider = listing.wider) {
        const auto finds = worded("%1 finds it in %n palette.", "%1 finds it in %n palettes.",
                                  static_cast<qsizetype>(wider->count));
        note.text += QStringLiteral(". ") + finds.arg(titleOf(wider->match));
        note.action = worded("Look by %1").arg(titleOf(wider->match));
    }
    return note;
}

} // namespace

LibraryNote noteOf(const LibraryModel& model, const LibraryLine& line) {
    using enum LibraryNote::About;
    const auto& listing = model.listing();
    if (listing.sections.empty() && listing.isSearch) return noteOfNothing(model);
    if (listing.sections.empty())
        return {noFolders, worded("No folders yet."),
                worded("Add one and its palettes appear in the Library and the Palette menu."),
                worded("Add a Folder…")};
    const bool isAlone = listing.sections.size() == 1;
    const auto& group = listing.groupOf(listing.sections[line.section]);
    if (!group.isOnline)
        return {offline, isAlone ? worded("The folder is not there") : QString(),
                shown(SaveTexts::chooseAgainText(group.location->nickname)),
                worded("Choose Again…")};
    if (!isAlone) return {noPalettes, {}, worded("No palettes found"), {}};
    return {noPalettes,
            worded("No palettes found"),
            worded("Other applications open these as palettes. Save into a watched folder and it "
                   "appears in the Library."),
            {}};
}

} // namespace tintra
