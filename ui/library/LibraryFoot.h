#pragma once

#include "ui/frame/FootChoices.h"
#include "ui/library/LibraryModel.h"

#include <QWidget>
#include <functional>

class QPushButton;

namespace tintra {

/// The foot of the Library: how much it holds, the format of codes, "Add a Folder…".
class LibraryFoot final : public QWidget {
public:
    LibraryFoot(Ui& ui, LibraryModel& model, QWidget* parent);

    std::function<void()> addFolder;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// `isShort`: where there is no room for all of it.
    QString facts(bool isShort) const;
    void sync();
    void layOut();

    Ui& ui_;
    LibraryModel& model_;
    QPushButton* add_;
    FootChoices choices_;
    int factsEnd_ = 0; ///< px
    Subscriptions subscriptions_;
};

} // namespace tintra
