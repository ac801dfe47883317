#include "ui/library/LibraryWords.h"

#include "colour/ColorNames.h"
#include "platform/Number.h"
#include "state/Models.h"
#include "state/SaveTexts.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Text.h"

#include <QDateTime>
#include <QLocale>

namespace tintra {

QString countAndType(const LibraryPalette& palette) {
    QStringList parts;
    if (palette.palette && palette.count > 0) parts << QString::number(palette.count);
    if (palette.hasFile) parts << oneLine(palette.extension(), 12);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

QString dateText(const LibraryPalette& palette) {
    if (!palette.hasFile) return {};
    const auto seconds = std::chrono::system_clock::to_time_t(palette.modified);
    return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds).date(),
                              QStringLiteral("d MMM yyyy"));
}

QString unreadableText(const LibraryPalette& palette) {
    return oneLine(SaveTexts::unreadableText(palette.hasFile ? palette.fileName() : palette.name));
}

QString titleOf(const LibraryGroup& group) {
    switch (group.kind) {
    case PaletteEntry::Group::colourPicker:
        return worded("Colour Picker");
    case PaletteEntry::Group::system:
        return worded("System Palettes");
    case PaletteEntry::Group::location:
        break;
    }
    const auto nickname = oneLine(group.location->nickname);
    return nickname.isEmpty() ? oneLine(group.folder.filename().string()) : nickname;
}

QString pathOf(const LibraryGroup& group) {
    return group.folder.empty() ? QString() : shownPath(group.folder);
}

QString countText(const LibraryListing& listing, const LibraryListing::Section& section) {
    const auto& group = listing.groupOf(section);
    if (group.read < group.count)
        return worded("Reading %1 of %2").arg(group.read).arg(group.count);
    if (listing.isSearch) return worded("%1 of %2").arg(section.count).arg(group.count);
    if (group.count == 0) return {};
    return worded("%n palette", "%n palettes", static_cast<qsizetype>(group.count));
}

QString swatchName(const PaletteFile::Swatch& swatch) {
    return oneLine(swatch.name ? *swatch.name : ColorNames::shared().name(swatch.color));
}

QString swatchCode(const Ui& ui, const PaletteFile::Swatch& swatch) {
    const auto& preferences = ui.models.preferences();
    return oneLine(preferences.format.value().string(swatch.color, swatch.name.value_or("colour"),
                                                     preferences.formatOptions.value()));
}

LibraryMatchText matchOf(const LibraryModel& model, std::size_t find) {
    const auto& listing = model.listing();
    const auto& hit = listing.finds[find].hit;
    const auto& palette = listing.paletteAt(find).palette;
    if (!listing.isSearch || !hit.index || !palette || *hit.index >= palette->swatches.size())
        return {};
    LibraryMatchText match{&palette->swatches[*hit.index], {}};
    if (!hit.distance) return match;
    const auto figure = fromUtf8(fixed(*hit.distance, 1));
    match.distance =
        model.match() == ColourMatch::hue ? figure + u'°' : QStringLiteral("ΔE ") + figure;
    return match;
}

std::unique_ptr<QMimeData> mimeOfListed(const Ui& ui, const LibraryPalette& palette) {
    if (palette.hasFile) return mimeOfPalette(palette.key);
    if (!palette.palette) return nullptr;
    QStringList codes;
    for (const auto& swatch : palette.palette->swatches)
        codes << swatchCode(ui, swatch);
    auto data = std::make_unique<QMimeData>();
    data->setText(codes.join(u'\n'));
    return data;
}

} // namespace tintra
