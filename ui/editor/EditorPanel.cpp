#include "ui/editor/EditorPanel.h"

#include "colour/ColorNames.h"
#include "colour/ColorProfiles.h"
#include "palettes/PasteColours.h"
#include "state/Models.h"
#include "ui/editor/BeforeNow.h"
#include "ui/editor/ChannelRow.h"
#include "ui/editor/CodeField.h"
#include "ui/editor/EditorPicker.h"
#include "ui/editor/GamutSentence.h"
#include "ui/shared/Controls.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

namespace tintra {

void EditorPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::panel));
    painter.fillRect(QRect(0, 0, 1, height()), ui_.theme.color(Token::line));
}

// What is shown

void EditorPanel::setSpace() {
    const auto space = ui_.models.preferences().editorSpace.value();
    const auto profiles = EditorProfiles::current();
    edited_.setSpace(space, profiles);
    space_->setText(editorSpaceTitle(space, profiles.white));
    space_->setAccessibleDescription(space_->text());
    const auto channels = editorSpace(space).channels;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i]->setVisible(i < channels.size());
        if (i < channels.size()) rows_[i]->setChannel(channels[i]);
    }
    refresh();
    place();
}

void EditorPanel::refresh() {
    const auto& buffer = state_.editorBuffer.value();
    if (!buffer) return;
    const auto at = state_.indexOf(buffer->swatchID);
    if (!at) return;
    const auto color = buffer->color;
    const bool another = buffer->swatchID != shown_;
    if (another) {
        commitName();
        shown_ = buffer->swatchID;
        touched_.reset();
        name_->setModified(false);
    }
    edited_.show(color, another ? EditedFigures::Of::anotherSwatch : EditedFigures::Of::sameSwatch);
    const auto vision = state_.vision.value();
    beforeNow_->show(state_.swatches()[*at].color, color, vision);
    plane_->show(edited_.hsb(), {color.r, color.g, color.b, 1}, vision);
    refreshRows(color);
    refreshName(*at, color);
    code_->setCode(codeOf(*at, color));
    if (another) dropTyped();
}

void EditorPanel::refreshRows(const WashColor& color) {
    const auto vision = state_.vision.value();
    const auto& sliders = edited_.sliders();
    const auto thumb = toQColor(simulate(vision, {color.r, color.g, color.b, 1}));
    for (std::size_t i = 0; i < sliders.space().channels.size(); ++i) {
        rows_[i]->setColours(channelStops(sliders, i, vision), thumb);
        rows_[i]->setValue(sliders.figures()[i]);
    }
    alpha_->setColours(alphaStops(color, vision), toQColor(ui_.painter.flat(color, vision)));
    alpha_->setValue(color.a * 100);
    const bool isOutside = sliders.space().value == EditorSpace::cmyk &&
                           isOutsideGamut(color, ColorProfiles::shared().cmykSpace());
    if (isOutside == gamut_->isVisibleTo(body_)) return;
    gamut_->setVisible(isOutside);
    place();
}

void EditorPanel::refreshName(std::size_t at, const WashColor& color) {
    const auto& given = state_.swatches()[at].name;
    const auto nearest = ColorNames::shared().name(color);
    name_->setPlaceholderText(oneLine(nearest));
    const auto text = given ? fromUtf8(*given) : QString();
    if (name_->isModified() || name_->text() == text) return;
    name_->setText(text);
    if (!name_->hasFocus()) name_->setCursorPosition(0);
}

QString EditorPanel::codeOf(std::size_t at, const WashColor& color) const {
    const auto& preferences = ui_.models.preferences();
    const auto& given = state_.swatches()[at].name;
    const auto name = given ? *given : ColorNames::shared().name(color);
    return fromUtf8(
        preferences.format.value().string(color, name, preferences.formatOptions.value()));
}

WashColor EditorPanel::asWritten(const WashColor& read) const {
    const auto at = shownAt();
    const auto& space = ColorProfiles::shared().rgbSpace();
    if (!at || &space == ColourSpace::sRGB().get()) return read;
    const auto inSpace = space.toSrgb({read.r, read.g, read.b, 0});
    if (!inSpace) return read;
    const WashColor meant{inSpace->r, inSpace->g, inSpace->b, read.a};
    const auto isShownSo = [&](const WashColor& color) {
        return PasteColours::colour(toUtf8(codeOf(*at, color))) == read;
    };
    // Codes that are no bytes are of sRGB, and clip what lies beyond.
    return !isShownSo(read) && isShownSo(meant) ? meant : read;
}

void EditorPanel::dropTyped() {
    for (auto* const row : rows_)
        row->dropTyped();
    alpha_->dropTyped();
    code_->dropTyped();
}

void EditorPanel::follow() {
    const auto& buffer = state_.editorBuffer.value();
    const auto at = state_.selectedSwatch.value();
    if (!buffer || !at || *at >= state_.swatches().size()) return;
    if (state_.swatches()[*at].id == buffer->swatchID) return;
    apply();
    state_.editSwatch(*at);
}

// What is done

void EditorPanel::put(const WashColor& color, std::string_view channel) {
    auto buffer = state_.editorBuffer.value();
    if (!buffer) return;
    touched_ = !touched_ || *touched_ == channel ? std::string(channel) : std::string();
    if (buffer->color == color) {
        // The hue of a grey is another, say.
        refresh();
        return;
    }
    buffer->color = color;
    state_.editorBuffer = buffer;
}

void EditorPanel::settle() {
    edited_.settle();
    refresh();
}

void EditorPanel::commitName() {
    if (!name_->isModified()) return;
    name_->setModified(false);
    if (const auto at = shownAt()) state_.renameSwatch(*at, toUtf8(name_->text()));
}

void EditorPanel::apply() {
    commitName();
    state_.applyEdit(touched_.value_or(std::string()));
    touched_.reset();
}

void EditorPanel::revert() {
    name_->setModified(false);
    dropTyped();
    state_.revertEdit();
    touched_.reset();
    refresh();
}

void EditorPanel::copy() {
    const auto at = shownAt();
    const auto& buffer = state_.editorBuffer.value();
    if (at && buffer) state_.copy(buffer->color, state_.swatches()[*at].name);
}

void EditorPanel::closeEditor() {
    apply();
    if (state_.editorBuffer.value()) state_.toggleEditor();
}

void EditorPanel::leaveByEscape() {
    const auto& buffer = state_.editorBuffer.value();
    const auto at = shownAt();
    const bool isEdited = buffer && at && buffer->color != state_.swatches()[*at].color;
    if (isEdited || name_->isModified() || code_->isModified())
        revert();
    else
        closeEditor();
}

bool EditorPanel::eventFilter(QObject* watched, QEvent* event) {
    // A long name is shown from its beginning, and typed on at its end.
    if (watched == name_ && event->type() == QEvent::FocusIn) name_->end(false);
    return QWidget::eventFilter(watched, event);
}

void EditorPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        leaveByEscape();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* const button = qobject_cast<QAbstractButton*>(focusWidget()))
            button->click();
        else if (!code_->isRefused())
            apply();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace tintra
