#pragma once

#include "ui/Ui.h"
#include "ui/settings/Binding.h"

#include <QWidget>
#include <array>

class QVBoxLayout;

namespace tintra {

class Words;

/// The formats of code with their favourites, how numbers are written in them, and samples.
class CodeTab final : public QWidget {
public:
    explicit CodeTab(Ui& ui, QWidget* parent = nullptr);

private:
    void addList();
    void addOptions();
    void addSamples();
    void showSamples();

    Ui& ui_;
    QVBoxLayout* column_;
    std::array<Words*, 3> samples_{};
    Bindings bindings_;
};

} // namespace tintra
