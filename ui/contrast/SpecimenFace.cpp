#include "ui/contrast/SpecimenFace.h"

#include "colour/Contrast.h"
#include "state/ContrastBoard.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <vector>

namespace tintra {
namespace {

struct Cut {
    int weight; ///< 100...900
    QString style;
};

/// The upright cuts of a family.
std::vector<Cut> cutsOf(const QString& family) {
    std::vector<Cut> cuts;
    for (const auto& style : QFontDatabase::styles(family))
        if (!QFontDatabase::italic(family, style))
            cuts.push_back({QFontDatabase::weight(family, style), style});
    return cuts;
}

/// Qt would thicken a cut that is lighter than what is asked of it; it is asked for what it has.
QFont fontOf(const QString& family, double size, int weight) {
    QFont font(family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    font.setWeight(static_cast<QFont::Weight>(weight));
    return font;
}

/// Whether a family is but a weight of another, as "Inter Black" is listed beside "Inter".
bool isCut(const QString& family, const QSet<QString>& all) {
    for (auto space = family.indexOf(u' '); space > 0; space = family.indexOf(u' ', space + 1)) {
        const auto of = family.left(space);
        auto style = family.mid(space + 1);
        if (!all.contains(of)) continue;
        // The styles are written with or without spaces: "Extra Bold", "ExtraBold".
        style.remove(u' ');
        for (auto known : QFontDatabase::styles(of))
            if (known.remove(u' ').compare(style, Qt::CaseInsensitive) == 0) return true;
    }
    return false;
}

} // namespace

SpecimenFace specimenFace(const ContrastBoard& board, const Theme& theme) {
    const auto own = QFontInfo(theme.font(TextStyle::body)).family();
    const auto& wanted = board.family.value();
    const auto asked = wanted ? fromUtf8(*wanted) : own;
    const bool isHere = QFontDatabase::hasFamily(asked);
    const auto family = isHere ? asked : own;
    const auto cuts = cutsOf(family);
    std::vector<int> weights;
    for (const auto& cut : cuts)
        weights.push_back(cut.weight);
    const auto used = Contrast::cssMatch(board.weight, weights);
    if (!used) return {fontOf(family, board.size, board.weight), family};
    const auto cut = std::ranges::find(cuts, *used, &Cut::weight);
    const auto name = oneLine(toUtf8(family + u' ' + cut->style), 80);
    auto note = name + worded(Contrast::needsSyntheticBold(board.weight, *used)
                                  ? ", as a browser would choose; a browser would then thicken it "
                                    "into a synthetic bold, which this does not."
                                  : ", as a browser would choose");
    if (!isHere) note = worded("%1 is not installed: ").arg(oneLine(toUtf8(asked), 60)) + note;
    return {fontOf(family, board.size, *used), note};
}

QStringList specimenFamilies() {
    auto families = QFontDatabase::families(QFontDatabase::Latin);
    families.removeIf([](const QString& family) { return QFontDatabase::isPrivateFamily(family); });
    families.removeDuplicates();
    const QSet<QString> all(families.begin(), families.end());
    families.removeIf([&all](const QString& family) { return isCut(family, all); });
    return families;
}

} // namespace tintra
