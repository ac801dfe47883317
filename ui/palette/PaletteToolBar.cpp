#include "ui/palette/PaletteToolBar.h"

#include "state/AppState.h"
#include "state/Models.h"
#include "ui/actions/FormatMenus.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QMenu>
#include <QPainter>
#include <algorithm>
#include <array>

namespace tintra {
namespace {

constexpr int kHeight = 44, kSide = 12, kGap = 4, kModeGap = 12, kGroupGap = 20;

/// What leaves first for the More menu.
constexpr std::array kLeaving{ActionId::openPicture, ActionId::typeOrPaste, ActionId::saveAs,
                              ActionId::colourEditor};

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

PaletteToolBar::PaletteToolBar(Ui& ui, AppState& state, ContextOf context, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state), context_(std::move(context)),
      mode_(new PopUpButton(ui.theme, PopUpButton::Border::yes, this)),
      display_(new Segmented(ui.theme, {{worded("Columns"), "columns"}, {worded("Tiles"), "tiles"}},
                             this)) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(worded("Tools"));
    mode_->fill = [&state](QMenu& menu) { fillModeMenu(menu, state); };
    display_->setAccessibleName(worded("Shown as"));
    display_->chosen = [this](int choice) {
        perform(choice == 0 ? ActionId::columns : ActionId::tiles, context_());
    };
    addTool(ActionId::addBlankSwatch, "add");
    addTool(ActionId::typeOrPaste, "paste");
    addTool(ActionId::openPicture, "picture");
    addTool(ActionId::saveAs, "export", true);
    addTool(ActionId::colourEditor, "editor");
    more_ = makeMoreButton(ui_, context_, this);
    tools_.push_back({ActionId::contextMenu, more_, false});
    subscribe();
    sync();
}

void PaletteToolBar::addTool(ActionId action, std::string_view icon, bool opensGroup) {
    auto* button = new ToolButton(ui_.theme, icon, 32, this);
    const auto& row = actionRow(action);
    button->setTitle(worded(row.text), keyText(row));
    connect(button, &QAbstractButton::clicked, this, [this, action] {
        // While the pane is open its button shuts it.
        const bool shuts = action == ActionId::openPicture && state_.isPictureWindowOpen.value();
        perform(shuts ? ActionId::picturePane : action, context_());
        sync();
    });
    tools_.push_back({action, button, opensGroup});
}

void PaletteToolBar::subscribe() {
    const auto again = [this] { sync(); };
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(state_.customPaletteVersion(), again);
    subscriptions_.add(state_.editorBuffer, [this] {
        // Every step of a slider comes here.
        const auto editor = std::ranges::find(tools_, ActionId::colourEditor, &Tool::action);
        if (editor->button->isChecked() != state_.editorBuffer.value().has_value()) sync();
    });
    subscriptions_.add(state_.isPictureWindowOpen, again);
    subscriptions_.add(state_.attachment(), again);
    subscriptions_.add(ui_.models.preferences().paletteViews, again);
    subscriptions_.add(ui_.theme.version(), again);
}

void PaletteToolBar::sync() {
    mode_->setText(shown(title(state_.mode.value())));
    mode_->setAccessibleName(worded("Mode: %1").arg(mode_->text()));
    const auto& views = ui_.models.preferences().paletteViews.value();
    const auto view = views.find(state_.displayKey());
    const bool tiles = view != views.end() && view->second == PaletteDisplay::tiles;
    display_->setCurrent(tiles ? 1 : 0);
    for (const auto& tool : tools_) {
        const bool editor = tool.action == ActionId::colourEditor && state_.editorBuffer.value();
        const bool picture =
            tool.action == ActionId::openPicture && state_.isPictureWindowOpen.value();
        tool.button->setCheckable(editor || picture);
        tool.button->setChecked(editor || picture);
        const bool needsSwatches =
            tool.action == ActionId::colourEditor || tool.action == ActionId::saveAs;
        tool.button->setEnabled(!needsSwatches || !state_.swatches().empty());
    }
    updateGeometry();
    layOut();
    update();
}

QSize PaletteToolBar::sizeHint() const {
    return {widthNeeded(), ui_.theme.scaled(kHeight)};
}

QSize PaletteToolBar::minimumSizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

int PaletteToolBar::widthNeeded() const {
    auto width = 2 * kSide + mode_->sizeHint().width();
    if (!display_->isHidden()) width += kModeGap + display_->sizeHint().width();
    for (const auto& tool : tools_)
        if (!tool.button->isHidden())
            width += tool.button->sizeHint().width() + (tool.opensGroup ? kGroupGap : kGap);
    return width;
}

void PaletteToolBar::layOut() {
    display_->setVisible(state_.mode.value() == HarmonyMode::paletteBuilder);
    for (const auto& tool : tools_)
        tool.button->show();
    for (const auto leaving : kLeaving) {
        if (widthNeeded() <= width()) break;
        // The display is chosen by key and menu too; the editor's button stays longest.
        if (leaving == ActionId::colourEditor) display_->hide();
        if (widthNeeded() <= width()) break;
        for (const auto& tool : tools_)
            if (tool.action == leaving) tool.button->hide();
    }
    const auto centred = [this](const QSize& size) { return (height() - size.height()) / 2; };
    const auto place = [&](QWidget& widget, int left) {
        widget.setGeometry(QRect(QPoint(left, centred(widget.sizeHint())), widget.sizeHint()));
    };
    place(*mode_, kSide);
    place(*display_, kSide + mode_->width() + kModeGap);
    auto right = width() - kSide;
    for (auto tool = tools_.rbegin(); tool != tools_.rend(); ++tool) {
        if (tool->button->isHidden()) continue;
        right -= tool->button->sizeHint().width();
        place(*tool->button, right);
        right -= tool->opensGroup ? kGroupGap : kGap;
    }
    update();
}

void PaletteToolBar::resizeEvent(QResizeEvent*) {
    layOut();
}

void PaletteToolBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::panel));
    // Where surfaces do not differ a line parts them; in a harmony the seeds have it.
    if (ui_.theme.isHighContrast() && state_.mode.value() == HarmonyMode::paletteBuilder)
        painter.fillRect(0, height() - 1, width(), 1, ui_.theme.color(Token::line));
    constexpr int kLine = 20;
    for (const auto& tool : tools_)
        if (tool.opensGroup && !tool.button->isHidden())
            painter.fillRect(tool.button->x() - kGroupGap / 2, (height() - kLine) / 2, 1, kLine,
                             ui_.theme.color(Token::line));
}

} // namespace tintra
