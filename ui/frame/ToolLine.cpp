#include "ui/frame/ToolLine.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QMenu>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kHeight = 44, kSide = 12, kWordsSide = 16, kGap = 4, kLeftGap = 12, kGroupGap = 20;

} // namespace

ToolButton* makeMoreButton(Ui& ui, const ContextOf& context, QWidget* parent) {
    auto* button = new ToolButton(ui.theme, "more", 32, parent);
    button->setTitle(worded("More"), {});
    QObject::connect(button, &QAbstractButton::clicked, button, [button, context] {
        auto* menu = new QMenu(button);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        fillMoreMenu(*menu, context);
        const auto right = button->width() - menu->sizeHint().width();
        menu->popup(button->mapToGlobal(QPoint(right, button->height() + 2)));
    });
    return button;
}

ToolLine::ToolLine(Ui& ui, ContextOf context, QWidget* parent)
    : QWidget(parent), ui_(ui), context_(std::move(context)),
      more_(makeMoreButton(ui, context_, this)) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(worded("Tools"));
    subscriptions_.add(ui.theme.version(), [this] {
        updateGeometry();
        layOut();
    });
}

void ToolLine::addLeft(QWidget* choice) {
    choice->setParent(this);
    left_.push_back(choice);
    orderTabs();
}

void ToolLine::addRight(QWidget* choice) {
    choice->setParent(this);
    right_.push_back(choice);
    orderTabs();
}

void ToolLine::setWords(const QString& words) {
    words_ = words;
    setAccessibleDescription(words);
    layOut();
}

ToolButton& ToolLine::addTool(ActionId action, std::string_view icon, bool opensGroup) {
    return add(action, action, icon, opensGroup);
}

ToolButton& ToolLine::addSwitch(ActionId action, ActionId switched, std::string_view icon) {
    return add(action, switched, icon, false);
}

ToolButton& ToolLine::add(ActionId action, ActionId switched, std::string_view icon,
                          bool opensGroup) {
    auto* button = new ToolButton(ui_.theme, icon, 32, this);
    connect(button, &QAbstractButton::clicked, this, [this, action, switched] {
        perform(isOn(switched) ? switched : action, context_());
        sync();
    });
    tools_.push_back({action, switched, button, opensGroup});
    orderTabs();
    return *button;
}

/// As they stand, from left to right.
void ToolLine::orderTabs() {
    QWidget* last = nullptr;
    const auto next = [&last](QWidget* stop) {
        if (last) setTabOrder(last, stop);
        last = stop;
    };
    for (auto* choice : left_)
        next(choice);
    for (auto* choice : right_)
        next(choice);
    for (const auto& tool : tools_)
        next(tool.button);
    next(more_);
}

bool ToolLine::isOn(ActionId action) const {
    const auto& row = actionRow(action);
    return row.isOn && row.isOn(context_());
}

void ToolLine::setLeaving(std::vector<QWidget*> leaving) {
    leaving_ = std::move(leaving);
    layOut();
}

void ToolLine::setParted(bool parted) {
    isParted_ = parted;
    update();
}

void ToolLine::sync() {
    const auto context = context_();
    for (const auto& tool : tools_) {
        const auto& row = actionRow(tool.action);
        tool.button->setTitle(actionTitle(row, context), keyText(row));
        tool.button->setEnabled(tintra::isEnabled(row, context));
        const bool on = isOn(tool.switched);
        tool.button->setCheckable(on);
        tool.button->setChecked(on);
    }
    layOut();
}

QSize ToolLine::sizeHint() const {
    return {widthNeeded(), ui_.theme.scaled(kHeight)};
}

QSize ToolLine::minimumSizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

int ToolLine::widthNeeded() const {
    auto width = 2 * kSide + more_->sizeHint().width();
    for (const auto* choice : left_)
        if (!choice->isHidden()) width += choice->sizeHint().width() + kLeftGap;
    for (const auto* choice : right_)
        if (!choice->isHidden()) width += choice->sizeHint().width() + kLeftGap;
    if (!words_.isEmpty())
        width +=
            static_cast<int>(figuresWidth(ui_.theme.font(TextStyle::body), words_)) + kWordsSide;
    for (const auto& tool : tools_)
        if (!tool.button->isHidden())
            width += tool.button->sizeHint().width() + (tool.opensGroup ? kGroupGap : kGap);
    return width;
}

void ToolLine::layOut() {
    for (auto* leaves : leaving_)
        leaves->show();
    for (auto* leaves : leaving_) {
        if (widthNeeded() <= width()) break;
        leaves->hide();
    }
    const auto place = [this](QWidget& widget, int left) {
        const auto hint = widget.sizeHint();
        widget.setGeometry(QRect(QPoint(left, (height() - hint.height()) / 2), hint));
    };
    auto left = kSide;
    for (auto* choice : left_) {
        if (choice->isHidden()) continue;
        place(*choice, left);
        left += choice->width() + kLeftGap;
    }
    auto right = width() - kSide - more_->sizeHint().width();
    place(*more_, right);
    right -= kGap;
    for (auto tool = tools_.rbegin(); tool != tools_.rend(); ++tool) {
        if (tool->button->isHidden()) continue;
        right -= tool->button->sizeHint().width();
        place(*tool->button, right);
        right -= tool->opensGroup ? kGroupGap : kGap;
    }
    for (auto* choice : right_) {
        if (choice->isHidden()) continue;
        right -= choice->sizeHint().width() + kLeftGap - kGap;
        place(*choice, right);
    }
    update();
}

void ToolLine::resizeEvent(QResizeEvent*) {
    layOut();
}

void ToolLine::paintEvent(QPaintEvent*) {
    constexpr int kLine = 20;
    QPainter painter(this);
    const auto& theme = ui_.theme;
    painter.fillRect(rect(), theme.color(Token::panel));
    if (theme.isHighContrast() && isParted_)
        painter.fillRect(0, height() - 1, width(), 1, theme.color(Token::line));
    for (const auto& tool : tools_)
        if (tool.opensGroup && !tool.button->isHidden())
            painter.fillRect(tool.button->x() - kGroupGap / 2, (height() - kLine) / 2, 1, kLine,
                             theme.color(Token::line));
    painter.setFont(theme.font(TextStyle::body));
    painter.setPen(theme.color(Token::ink2));
    drawFigures(painter, QRectF(rect()).adjusted(kWordsSide, 0, -kWordsSide, 0),
                Qt::AlignVCenter | Qt::AlignLeft, words_);
}

} // namespace tintra
