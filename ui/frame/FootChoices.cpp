#include "ui/frame/FootChoices.h"

#include "state/Models.h"
#include "ui/actions/FormatMenus.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"

namespace tintra {

FootChoices::FootChoices(Ui& ui, QProperty<Vision>* vision, QWidget* foot)
    : ui_(ui), vision_(vision),
      visionButton_(vision ? new PopUpButton(ui.theme, PopUpButton::Border::no, foot) : nullptr),
      formatButton_(new PopUpButton(ui.theme, PopUpButton::Border::no, foot)) {
    if (vision) {
        visionButton_->setIconName("eye");
        visionButton_->fill = [&ui, vision](QMenu& menu) {
            fillVisionMenu(menu, *vision, ui.theme);
        };
        subscriptions_.add(*vision, [this] { sync(); });
    }
    auto& format = ui.models.preferences().format;
    formatButton_->fill = [&ui, &format](QMenu& menu) {
        fillFormatMenu(menu, ui, true, [&format](ColorFormat chosen) { format = chosen; });
    };
    subscriptions_.add(format, [this] { sync(); });
    sync();
}

void FootChoices::sync() {
    if (vision_) {
        const auto kind = vision_->value();
        visionButton_->setText(shown(title(kind)));
        visionButton_->setAccessibleName(worded("Vision: %1").arg(visionButton_->text()));
        visionButton_->setInverted(kind != Vision::typical);
    }
    formatButton_->setText(shown(ui_.models.preferences().format.value().title()));
    formatButton_->setAccessibleName(worded("Code format: %1").arg(formatButton_->text()));
    if (changed) changed();
}

} // namespace tintra
