#pragma once

#include "ui/frame/MainWindow.h"

namespace tintra {

class ToolLine;
class FactsLine;

/// The Bench window. Main loop.
class BenchWindow final : public MainWindow {
public:
    explicit BenchWindow(Ui& ui);

    ActionContext context() override;

protected:
    std::vector<QWidget*> regions() const override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    ToolLine* tools_;
    QWidget* body_;
    FactsLine* facts_;
};

} // namespace tintra
