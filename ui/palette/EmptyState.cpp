#include "ui/palette/EmptyState.h"

#include "ui/actions/ActionTable.h"
#include "ui/program/Windows.h"
#include "ui/shared/Beginning.h"
#include "ui/shared/Lines.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

constexpr int kQuoteWidth = 440, kActionWidth = 324, kAction = 36, kLowestAction = 24;
constexpr int kMargin = 12, kAuthorGap = 10, kActionsGap = 34;

/// The quotation's size and line height, px, and what it shrinks to where there is little room.
constexpr std::array<std::pair<int, int>, 3> kQuoteSizes{{{30, 40}, {22, 30}, {16, 22}}};

/// What to begin with.
struct Beginning {
    const char* icon;
    const char* text;
    ActionId action; ///< whose key is shown
    std::function<void()> EmptyState::*perform;
};
constexpr std::array kBeginnings{
    Beginning{"paste", "Type or paste values", ActionId::typeOrPaste, &EmptyState::typeOrPaste},
    Beginning{"picture", "Open a picture", ActionId::openPicture, &EmptyState::openPicture},
    Beginning{"library", "Open a palette from the Library", ActionId::openLibrary,
              &EmptyState::openLibrary},
    Beginning{"folder", "Open a palette…", ActionId::open, &EmptyState::openPalette},
};

} // namespace

EmptyState::EmptyState(Ui& ui, AppState& state, QWidget* parent)
    : Canvas(ui.theme, parent), openPicture([this] { state_.chooseImage(); }),
      openLibrary([&ui] { ui.windows.openLibrary(); }), openPalette([this] { state_.open(); }),
      state_(state) {
    setAccessibleName(worded("Empty palette"));
    subscriptions_.add(ui.theme.version(), [this] { relayout(); });
}

EmptyState::Setting EmptyState::setting(qreal width, qreal height) const {
    const auto text = QChar(0x201C) + fromUtf8(state_.quote().text) + QChar(0x201D);
    for (const auto& [size, line] : kQuoteSizes) {
        Setting setting{theme().font(TextStyle::quotation), theme().scaled(line), {}};
        setting.font.setPixelSize(theme().scaled(size));
        const auto most = std::min<qreal>(width, theme().scaled(kQuoteWidth));
        setting.lines = evenLinesOf(text, setting.font, most);
        if (setting.height() <= height) return setting;
    }
    return {};
}

CanvasItem EmptyState::actionItem(std::size_t at, const QRectF& rect) const {
    CanvasItem item;
    item.rect = rect;
    item.kind = action;
    item.index = at;
    item.role = QAccessible::Button;
    item.name = worded(kBeginnings[at].text);
    item.description = keyText(actionRow(kBeginnings[at].action));
    return item;
}

std::vector<CanvasItem> EmptyState::layoutItems(QSizeF size) const {
    const auto width = std::max<qreal>(1, size.width() - 2 * kMargin);
    const auto count = static_cast<int>(kBeginnings.size());
    // The quotation gets what the actions leave.
    const auto lowest = std::clamp(static_cast<int>(size.height()) / count, kLowestAction,
                                   theme().scaled(kLowestAction));
    const auto row = std::clamp(static_cast<int>(size.height() - 2 * kMargin) / count, lowest,
                                theme().scaled(kAction));
    const auto actions = row * count;
    const auto authorLine = theme().lineHeight(TextStyle::body);
    const auto around = kAuthorGap + authorLine + kActionsGap;
    quote_ = setting(width, size.height() - actions - around - 2 * kMargin);
    const auto quote = quote_.lines.isEmpty() ? 0 : quote_.height() + around;
    auto y = std::max(0, static_cast<int>(size.height() - quote - actions) / 2);

    std::vector<CanvasItem> items;
    const auto text = [&](Kind kind, const QRectF& in, const QString& name) {
        CanvasItem item;
        item.rect = in;
        item.kind = kind;
        item.name = name;
        items.push_back(std::move(item));
    };
    if (quote > 0) {
        text(quotation, QRectF(kMargin, y, width, quote_.height()), fromUtf8(state_.quote().text));
        y += quote_.height() + kAuthorGap;
        text(author, QRectF(kMargin, y, width, authorLine), fromUtf8(state_.quote().author));
        y += authorLine + kActionsGap;
    }
    const auto actionWidth = std::min<qreal>(width, theme().scaled(kActionWidth));
    const auto left = std::round((size.width() - actionWidth) / 2);
    for (std::size_t i = 0; i < kBeginnings.size(); ++i, y += row)
        items.push_back(actionItem(i, QRectF(left, y, actionWidth, row)));
    return items;
}

void EmptyState::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    switch (item.kind) {
    case quotation: {
        painter.setFont(quote_.font);
        painter.setPen(theme().color(Token::ink));
        auto line = QRectF(item.rect.left(), item.rect.top(), item.rect.width(), quote_.line);
        for (const auto& text : quote_.lines) {
            painter.drawText(line, Qt::AlignCenter | Qt::TextDontClip, text);
            line.translate(0, quote_.line);
        }
        break;
    }
    case action:
        paintBeginning(painter, theme(), item, kBeginnings[item.index].icon,
                       {state.hovered, pressed_ >= 0, state.focused});
        break;
    default: {
        painter.setFont(theme().font(TextStyle::body));
        painter.setPen(theme().color(Token::ink3));
        painter.drawText(item.rect, Qt::AlignCenter | Qt::TextWordWrap, item.name);
    }
    }
}

// Choosing

void EmptyState::perform(int item) {
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind != action) return;
    const auto& chosen = this->*kBeginnings[items()[static_cast<std::size_t>(item)].index].perform;
    if (chosen) chosen();
}

void EmptyState::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto item = itemAt(event->position());
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind != action) return;
    pressed_ = item;
    setFocused(item);
    repaintItem(item);
}

void EmptyState::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(pressed_, -1);
    repaintItem(pressed);
    if (pressed >= 0 && pressed == itemAt(event->position())) perform(pressed);
}

void EmptyState::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    if (enters && !event->isAutoRepeat() && focused() >= 0)
        perform(focused());
    else
        Canvas::keyPressEvent(event);
}

} // namespace tintra
