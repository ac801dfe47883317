#pragma once

#include "state/Choices.h"
#include "ui/Ui.h"

#include <QProperty>
#include <QWidget>
#include <array>

class QScrollArea;
class QStackedWidget;

namespace tintra {

class NoticeBar;
class Segmented;

/// The settings: one window with five tabs, at the tab last open. A tab is made when it is first
/// shown.
class SettingsWindow final : public QWidget {
public:
    explicit SettingsWindow(Ui& ui);
    ~SettingsWindow() override;

    NoticeBar& notices() { return *notices_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr std::size_t kTabs = 5;

    QWidget* header();
    void addKeys();
    void showTab();
    void turn(int by);
    QWidget* makeTab(SettingsTab tab);
    void measure();
    void takeRequest();

    Ui& ui_;
    Segmented* tabs_ = nullptr;
    QWidget* header_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    NoticeBar* notices_ = nullptr;
    std::array<QScrollArea*, kTabs> made_{};
    QPropertyNotifier tabChanged_, themeChanged_, shortcutsRequested_;
};

} // namespace tintra
