#include "ui/paste/PasteEditor.h"

#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kPitch = 24; ///< from line to line
constexpr int kInset = 10;
// Beyond these, laying the text out takes longer than a person waits between two keys.
constexpr qsizetype kMostShown = 200'000, kMostLines = 12'000, kLongestLine = 4'000;
// Of a text that is not shown whole.
constexpr qsizetype kBeginning = 500, kBeginningOfLine = 500;

/// Every line break as a line feed.
QString withLineFeeds(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (auto& character : text)
        switch (character.unicode()) {
        case u'\r':
        case u'\v':
        case u'\f':
        case 0x85:
        case 0x2028:
        case 0x2029:
            character = u'\n';
            break;
        case 0:
            character = u' ';
            break;
        default:
            break;
        }
    return text;
}

bool isEasilyShown(const QString& text) {
    if (text.size() > kMostShown) return false;
    qsizetype lines = 1, length = 0;
    for (const auto character : text) {
        length = character == u'\n' ? 0 : length + 1;
        if (length > kLongestLine) return false;
        if (character == u'\n' && ++lines > kMostLines) return false;
    }
    return true;
}

QString beginningOf(const QString& text) {
    QString shown;
    qsizetype from = 0;
    for (qsizetype line = 0; line < kBeginning && from <= text.size(); ++line) {
        const auto feed = text.indexOf(u'\n', from);
        const auto end = feed < 0 ? text.size() : feed;
        if (line > 0) shown += u'\n';
        shown += QStringView(text).mid(from, std::min(end - from, kBeginningOfLine));
        if (end - from > kBeginningOfLine) shown += QChar(0x2026);
        from = end + 1;
    }
    if (from <= text.size()) shown += QStringLiteral("\n") + QChar(0x2026);
    return shown;
}

} // namespace

/// Lines further apart than the face has them.
class PasteEditor::Spaced final : public QPlainTextDocumentLayout {
public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;
    QRectF blockBoundingRect(const QTextBlock& block) const override {
        auto rect = QPlainTextDocumentLayout::blockBoundingRect(block);
        if (rect.isValid()) rect.setHeight(std::max<qreal>(rect.height(), pitch));
        return rect;
    }
    int pitch = kPitch;
};

PasteEditor::PasteEditor(const Theme& theme, QWidget* parent)
    : QPlainTextEdit(parent), theme_(theme) {
    auto* document = new QTextDocument(this);
    layout_ = new Spaced(document);
    document->setDocumentLayout(layout_);
    document->setDocumentMargin(kInset);
    setDocument(document);
    setFrameShape(QFrame::NoFrame);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    setAccessibleName(worded("Values"));
    follow();
}

void PasteEditor::follow() {
    auto font = theme_.font(TextStyle::code);
    document()->setDefaultFont(font);
    setFont(font);
    layout_->pitch = theme_.scaled(kPitch);
    // Black on white stays so in a palette that an application-wide change may have brought.
    auto colours = palette();
    colours.setColor(QPalette::Base, theme_.color(Token::raised));
    colours.setColor(QPalette::Text, theme_.color(Token::ink));
    setPalette(colours);
    document()->markContentsDirty(0, document()->characterCount());
}

QString PasteEditor::text() const {
    return whole_ ? *whole_ : toPlainText();
}

void PasteEditor::empty() {
    whole_.reset();
    setReadOnly(false);
    clear();
}

std::vector<PasteEditor::Line> PasteEditor::visibleLines() const {
    std::vector<Line> lines;
    const QRectF seen = viewport()->rect();
    for (auto block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        auto rect = blockBoundingGeometry(block).translated(contentOffset());
        if (rect.top() > seen.bottom()) break;
        // Words stand at the top of the room of their line.
        rect.setHeight(QFontMetricsF(document()->defaultFont()).height());
        lines.push_back({static_cast<std::size_t>(block.blockNumber()), rect});
    }
    return lines;
}

void PasteEditor::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool belongsToSheet = event->key() == Qt::Key_Escape ||
                                (enters && event->modifiers().testFlag(Qt::ControlModifier));
    if (belongsToSheet) {
        event->ignore();
        return;
    }
    if (!whole_) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    const bool takesAway = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete ||
                           event->matches(QKeySequence::Cut);
    if (takesAway)
        empty();
    else if (event->matches(QKeySequence::Paste))
        insertFromMimeData(QGuiApplication::clipboard()->mimeData());
    else
        QPlainTextEdit::keyPressEvent(event);
}

bool PasteEditor::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() || source->hasColor();
}

QString PasteEditor::with(const QString& inserted) const {
    if (whole_) return inserted;
    auto whole = toPlainText();
    const auto cursor = textCursor();
    const auto from = cursor.selectionStart();
    return whole.replace(from, cursor.selectionEnd() - from, inserted);
}

void PasteEditor::insertFromMimeData(const QMimeData* source) {
    const auto text = source->hasText()
                          ? withLineFeeds(source->text())
                          : qvariant_cast<QColor>(source->colorData()).name(QColor::HexRgb);
    auto whole = with(text);
    if (whole.size() > kMost) {
        if (refused) refused();
        return;
    }
    if (!isEasilyShown(whole)) {
        showBeginning(std::move(whole));
        return;
    }
    if (whole_) empty();
    insertPlainText(text);
    ensureCursorVisible();
}

void PasteEditor::showBeginning(QString whole) {
    whole_ = std::move(whole);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    setPlainText(beginningOf(*whole_));
}

} // namespace tintra
