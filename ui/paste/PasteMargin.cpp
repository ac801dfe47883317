#include "ui/paste/PasteMargin.h"

#include "colour/ColorNames.h"
#include "ui/paste/PasteEditor.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPaintEvent>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kInset = 12, kChip = 18, kGap = 8;

QString wordsOf(const PasteReading::Line& line) {
    if (!line.color) return QStringLiteral("—");
    if (line.isRepeat) return worded("as above");
    auto name = oneLine(line.name ? *line.name : ColorNames::shared().name(*line.color));
    return line.more == 0 ? name : QStringLiteral("%1 +%2").arg(name).arg(line.more);
}

} // namespace

PasteMargin::PasteMargin(Ui& ui, const PasteEditor& editor, QWidget* parent)
    : QWidget(parent), ui_(ui), editor_(editor) {}

void PasteMargin::setReading(PasteReading reading) {
    reading_ = std::move(reading);
    update();
}

void PasteMargin::setVision(Vision vision) {
    vision_ = vision;
    update();
}

QString PasteMargin::words(std::size_t line) const {
    const auto* read = reading_.line(line);
    return read ? wordsOf(*read) : QString();
}

void PasteMargin::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRect(0, 0, 1, height()), ui_.theme.color(Token::line));
    painter.setFont(ui_.theme.font(TextStyle::small));
    const auto down = editor_.viewport()->mapTo(parentWidget(), QPoint()).y() - y();
    for (const auto& line : editor_.visibleLines()) {
        const auto beside = line.rect.translated(0, down);
        const auto* read = reading_.line(line.number);
        if (read &&
            beside.toAlignedRect().adjusted(0, -kChip, 0, kChip).bottom() >= event->rect().top())
            paintLine(painter, *read, beside);
    }
}

void PasteMargin::paintLine(QPainter& painter, const PasteReading::Line& line,
                            const QRectF& beside) const {
    const auto& theme = ui_.theme;
    const auto side = theme.scaled(kChip);
    const QRectF chip(kInset, std::round(beside.center().y() - side / 2.0), side, side);
    auto left = chip.left();
    if (line.color && !line.isRepeat) {
        ui_.painter.chip(painter, chip, *line.color, vision_);
        left = chip.right() + kGap;
    }
    painter.setPen(theme.color(line.color && !line.isRepeat ? Token::ink : Token::ink3));
    const QRectF room(left, chip.top(), width() - left - kGap, chip.height());
    painter.drawText(
        room, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetricsF(painter.font()).elidedText(wordsOf(line), Qt::ElideRight, room.width()));
}

} // namespace tintra
