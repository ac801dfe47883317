#include "ui/contrast/SpecimenCanvas.h"

#include "state/Models.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kInset = 32, kNarrowInset = 16, kHeading = 36, kHeadingLine = 44, kGap = 16;
constexpr int kHeadingRise = 5, kHeadingGap = 11, kFrame = 2;
constexpr int kButton = 36, kButtonPadding = 16, kButtonGap = 12, kIcon = 20;
constexpr qreal kLine = 1.6;   ///< line height of the words, of their size
constexpr qreal kMeasure = 35; ///< the longest line, of their size
/// No longer text is set: it is what a person looks at, not a document.
constexpr int kMostCharacters = 4000;

qreal lineStep(const QFont& font) {
    return std::round(font.pixelSize() * kLine);
}

qreal longestLine(const QFont& font) {
    constexpr qreal kLeast = 200;
    return std::max(kMeasure * font.pixelSize(), kLeast);
}

/// In the face of the words; the system's own has a cut for headings.
QFont headingFont(const Theme& theme, const QFont& words) {
    auto font = words;
    if (words.family() == QFontInfo(theme.font(TextStyle::body)).family())
        font.setFamilies(theme.font(TextStyle::quotation).families());
    font.setPixelSize(theme.scaled(kHeading));
    font.setWeight(QFont::Bold);
    return font;
}

} // namespace

SpecimenCanvas::SpecimenCanvas(Ui& ui, QWidget* parent) : PairCanvas(ui, parent) {
    setAccessibleName(worded("Specimen"));
    setCursor(Qt::ArrowCursor);
    const auto again = [this] { upkeep_.due(); };
    const auto face = [this] { syncFace(); };
    auto& of = board();
    subscriptions().add(of.content(), again);
    subscriptions().add(of.vision, again);
    subscriptions().add(of.specimen, again);
    subscriptions().add(of.size, face);
    subscriptions().add(of.weight, face);
    subscriptions().add(of.family, face);
    subscriptions().add(of.specimenEditRequested, [this] {
        if (board().specimenEditRequested.value()) beginEdit();
    });
    subscriptions().add(ui.theme.version(), face);
    syncFace();
}

SpecimenCanvas::~SpecimenCanvas() = default;

void SpecimenCanvas::syncFace() {
    face_ = specimenFace(board(), theme());
    upkeep_.due();
}

void SpecimenCanvas::sync() {
    const auto* text = board().text();
    const auto* ground = board().ground();
    if (!text || !ground) {
        endEdit(true);
        return;
    }
    colours_ = seenPair(text->color, ground->color, board().vision);
    heading_ = worded("%1 on %2")
                   .arg(oneLine(board().name(*text), 80), oneLine(board().name(*ground), 80));
    relayout();
    dressEditor();
}

void SpecimenCanvas::layOutWords(qreal width) const {
    auto text = fromUtf8(board().specimen.value()).left(kMostCharacters);
    text.replace(u'\n', QChar::LineSeparator);
    // Colours come and go many times a second; the words seldom.
    if (layoutWidth_ == width && layout_.text() == text && layout_.font() == face_.font) return;
    layoutWidth_ = width;
    layout_.setText(text);
    layout_.setFont(face_.font);
    layout_.beginLayout();
    qreal y = 0;
    const auto step = lineStep(face_.font);
    for (auto line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, y + (step - line.height()) / 2});
        y += step;
    }
    layout_.endLayout();
}

std::vector<CanvasItem> SpecimenCanvas::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    const auto inset = size.width() < theme().scaled(480) || size.height() < theme().scaled(200)
                           ? kNarrowInset
                           : kInset;
    const auto wide = std::max<qreal>(1, size.width() - 2 * inset);
    const auto add = [&](Kind kind, const QRectF& in, QAccessible::Role role, const QString& name) {
        CanvasItem item;
        item.rect = in;
        item.kind = kind;
        item.role = role;
        item.name = name;
        items.push_back(std::move(item));
    };
    const auto headingHigh = theme().scaled(kHeadingLine), button = theme().scaled(kButton);
    const auto line = lineStep(face_.font);
    const bool hasHeading = size.height() >= headingHigh + line + 2 * inset;
    const bool hasParts = size.height() >= headingHigh + line + button + 2 * inset + kGap;
    qreal top = hasHeading ? inset - kHeadingRise : 8,
          bottom = size.height() - (hasParts ? inset - 8 : 8);
    if (hasHeading) {
        add(heading, {qreal(inset), top, wide, qreal(headingHigh)}, QAccessible::StaticText,
            heading_);
        top += headingHigh + kHeadingGap;
    }
    if (hasParts) bottom -= button + kGap;
    layOutWords(std::min(wide, longestLine(face_.font)));
    add(words,
        {qreal(inset), top, std::min(wide, layout_.boundingRect().width() + 2),
         std::max<qreal>(0, bottom - top)},
        QAccessible::StaticText, worded("Specimen"));
    items.back().value = layout_.text();
    items.back().description = fromUtf8(board().typeDescription());
    if (!hasParts) return items;
    const auto y = bottom + kGap;
    qreal left = inset;
    const QFontMetricsF measure(theme().font(TextStyle::name, Qt::black));
    for (const auto& [kind, title] :
         {std::pair(filledButton, worded("Continue")), std::pair(plainButton, worded("Not now"))}) {
        const auto padding = kButtonPadding + (kind == plainButton ? kFrame : 0);
        const auto width = std::ceil(measure.horizontalAdvance(title)) + 2 * padding;
        add(kind, {left, y, width, qreal(button)}, QAccessible::NoRole, title);
        left += width + kButtonGap;
    }
    add(icon, {left, y, qreal(button), qreal(button)}, QAccessible::NoRole, {});
    return items;
}

// Painting

void SpecimenCanvas::paintGround(QPainter& painter, const QRect&) {
    const QRectF all(rect());
    painter.fillRect(all, theme().color(Token::ground));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours_.ground);
    painter.drawRoundedRect(all, metrics::kGroupRadius, metrics::kGroupRadius);
    ui().painter.hairline(painter, all, metrics::kGroupRadius);
}

void SpecimenCanvas::paintHeading(QPainter& painter, const QRectF& in, const QString& text) const {
    const auto font = headingFont(theme(), face_.font);
    painter.setFont(font);
    painter.setPen(colours_.text);
    painter.drawText(in, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(text, Qt::ElideRight, in.width()));
}

/// As many lines as there is room for: half a line cannot be judged. One line always.
void SpecimenCanvas::paintWords(QPainter& painter, const QRectF& in) const {
    const auto step = lineStep(face_.font);
    const auto lines = std::max(1, static_cast<int>(in.height() / step));
    painter.setClipRect(in.adjusted(-4, 0, width(), 0));
    painter.setPen(colours_.text);
    for (int i = 0; i < std::min(lines, layout_.lineCount()); ++i)
        layout_.lineAt(i).draw(&painter, in.topLeft());
}

void SpecimenCanvas::paintButton(QPainter& painter, const CanvasItem& item) const {
    const bool filled = item.kind == filledButton;
    painter.setPen(filled ? QPen(Qt::NoPen) : QPen(colours_.text, kFrame));
    painter.setBrush(filled ? QBrush(colours_.text) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(filled ? item.rect : item.rect.adjusted(1, 1, -1, -1),
                            metrics::kControlRadius, metrics::kControlRadius);
    const auto& ink = filled ? colours_.ground : colours_.text;
    painter.setFont(theme().font(TextStyle::name, ink));
    painter.setPen(ink);
    painter.drawText(item.rect, Qt::AlignCenter, item.name);
}

void SpecimenCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    switch (item.kind) {
    case heading:
        paintHeading(painter, item.rect, item.name);
        break;
    case words:
        if (editor_) break;
        paintWords(painter, item.rect);
        break;
    case icon:
        painter.drawPixmap(item.rect.center() - QPointF(kIcon / 2.0, kIcon / 2.0),
                           theme().icon("search", kIcon, colours_.text, devicePixelRatioF()));
        break;
    default:
        paintButton(painter, item);
    }
    if (!state.focused) return;
    painter.setPen(QPen(colours_.text, metrics::kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(item.rect.adjusted(-8, -3, 8, 3), metrics::kControlRadius,
                            metrics::kControlRadius);
}

// Editing

void SpecimenCanvas::beginEdit() {
    board().specimenEditRequested = false;
    // It may have come to be seen only now.
    relayout();
    if (find(words, 0) < 0 || editor_) return;
    before_ = board().specimen.value();
    editor_ = new QTextEdit(this);
    editor_->setAcceptRichText(false);
    editor_->setPlainText(fromUtf8(before_));
    editor_->setAccessibleName(worded("Specimen"));
    editor_->setFrameShape(QFrame::NoFrame);
    editor_->setTabChangesFocus(true);
    editor_->document()->setDocumentMargin(0);
    editor_->installEventFilter(this);
    connect(editor_, &QTextEdit::textChanged, this,
            [this] { board().specimen = toUtf8(editor_->toPlainText().left(kMostCharacters)); });
    dressEditor();
    editor_->show();
    editor_->selectAll();
    editor_->setFocus(Qt::OtherFocusReason);
    update();
}

void SpecimenCanvas::dressEditor() {
    if (!editor_) return;
    editor_->setFont(face_.font);
    auto palette = editor_->palette();
    palette.setColor(QPalette::Base, colours_.ground);
    palette.setColor(QPalette::Text, colours_.text);
    palette.setColor(QPalette::Highlight, colours_.text);
    palette.setColor(QPalette::HighlightedText, colours_.ground);
    editor_->setPalette(palette);
    const auto item = find(words, 0);
    if (item < 0) return;
    // Its lines stand where the painted ones do, but for being set on the foot of theirs.
    const auto step = lineStep(face_.font);
    QTextBlockFormat format;
    format.setLineHeight(step, QTextBlockFormat::FixedHeight);
    QTextCursor all(editor_->document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
    const auto lift = (step - QFontMetricsF(face_.font).height()) / 2;
    const auto& in = items()[static_cast<std::size_t>(item)].rect;
    const auto wide = std::min(longestLine(face_.font) + 1, width() - in.left() - kNarrowInset);
    editor_->setGeometry(QRectF(in.left(), in.top() - lift, wide, in.height() + lift).toRect());
}

void SpecimenCanvas::endEdit(bool keep) {
    if (!editor_) return;
    auto* editor = editor_.data();
    editor_ = nullptr;
    const bool hadKeyboard = editor->hasFocus();
    editor->disconnect(this);
    editor->hide();
    // It may be in the middle of the event that ends it.
    editor->deleteLater();
    if (!keep) board().specimen = before_;
    // Without words there is nothing to look at.
    const auto left = fromUtf8(board().specimen.value());
    if (left.trimmed().isEmpty()) board().specimen = std::string(ContrastBoard::kDefaultSpecimen);
    if (hadKeyboard) {
        setFocused(find(words, 0));
        setFocus(Qt::OtherFocusReason);
    }
    update();
}

bool SpecimenCanvas::eventFilter(QObject* watched, QEvent* event) {
    if (watched != editor_) return PairCanvas::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) endEdit(true);
        return false;
    }
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool accepts = (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) &&
                         key.modifiers().testFlag(Qt::ControlModifier);
    if (key.key() != Qt::Key_Escape && !accepts) return false;
    endEdit(accepts);
    return true;
}

void SpecimenCanvas::hoverMoved(int item, QPointF) {
    const bool onWords = item >= 0 && items()[static_cast<std::size_t>(item)].kind == words;
    setCursor(onWords ? Qt::IBeamCursor : Qt::ArrowCursor);
}

void SpecimenCanvas::mousePressEvent(QMouseEvent* event) {
    if (editor_) endEdit(true);
    const auto item = itemAt(event->position());
    if (item >= 0 && items()[static_cast<std::size_t>(item)].role != QAccessible::NoRole)
        setFocused(item);
}

void SpecimenCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    const bool onWords = item >= 0 && items()[static_cast<std::size_t>(item)].kind == words;
    if (event->button() == Qt::LeftButton && onWords) beginEdit();
}

void SpecimenCanvas::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto at = focused();
    if (enters && at >= 0 && items()[static_cast<std::size_t>(at)].kind == words)
        beginEdit();
    else
        PairCanvas::keyPressEvent(event);
}

void SpecimenCanvas::resizeEvent(QResizeEvent* event) {
    PairCanvas::resizeEvent(event);
    dressEditor();
}

} // namespace tintra
