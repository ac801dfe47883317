#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/editor/EditedColour.h"

#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

namespace tintra {

class BeforeNow;
class ChannelRow;
class CodeField;
class EditorPicker;
class GamutSentence;
class PopUpButton;
class Segmented;
class ToolButton;

/// The colour editor, at the right of a palette window: what stands in the model's `editorBuffer`
/// as name, plane or wheel, sliders and code. Shown while there is a buffer, by whoever made it.
/// The keyboard comes to the name first. Edits are applied by Enter and by choosing another swatch;
/// Esc drops them, or closes the editor when there are none.
class EditorPanel final : public QWidget {
public:
    static constexpr int kWidth = 312; ///< px at regular text size

    EditorPanel(Ui& ui, AppState& state, QWidget* parent);
    ~EditorPanel() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Subscriptions;

    // Assembly and layout (EditorPanelParts.cpp).
    void makeHead();
    void makeSliders();
    void makeFoot();
    void connectEdits();
    void connectCommands();
    void subscribe();
    void restyle();
    void place();
    /// Answers the height it takes.
    int placeBody();
    /// Of the space that is shown, alpha last.
    std::vector<ChannelRow*> sliderRows() const;

    // What is shown.
    void setSpace();
    void refresh();
    void refreshName(std::size_t at, const WashColor& color);
    void refreshRows(const WashColor& color);
    QString codeOf(std::size_t at, const WashColor& color) const;
    /// What was meant by a code that reads as `read`: codes in bytes are shown in the RGB space of
    /// the settings, and are meant in it when they are typed.
    WashColor asWritten(const WashColor& read) const;
    void dropTyped();
    void follow();

    // What is done.
    void put(const WashColor& color, std::string_view channel);
    void settle();
    void commitName();
    void apply();
    void revert();
    void closeEditor();
    void copy();
    void leaveByEscape();
    std::optional<std::size_t> shownAt() const { return state_.indexOf(shown_); }

    Ui& ui_;
    AppState& state_;
    EditedColour edited_;
    Uuid shown_; ///< the swatch whose colour is shown
    /// What was changed since the last apply: nothing, one channel, or several (empty).
    std::optional<std::string> touched_;

    QScrollArea* area_;
    QWidget* body_;
    QLineEdit* name_;
    ToolButton* close_;
    BeforeNow* beforeNow_;
    Segmented* picker_;
    PopUpButton* space_;
    EditorPicker* plane_;
    std::array<ChannelRow*, 4> rows_{};
    ChannelRow* alpha_;
    GamutSentence* gamut_;
    CodeField* code_;
    QPushButton *apply_, *revert_;
    QWidget* foot_;
    QLabel* refusal_;
    std::unique_ptr<Subscriptions> subscriptions_;
};

} // namespace tintra
