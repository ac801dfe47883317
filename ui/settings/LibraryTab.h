#pragma once

#include "state/PaletteLocations.h"
#include "ui/Ui.h"
#include "ui/settings/Binding.h"
#include "ui/settings/Form.h"

namespace tintra {

class ListFrame;
class LocationsList;

/// The folders that the Library watches, what else it lists, and how it is searched by colour.
class LibraryTab final : public Form {
public:
    explicit LibraryTab(Ui& ui, QWidget* parent = nullptr);

private:
    void addFolders();
    void addSearch();
    QWidget* buttons();
    void takeFolders();

    Ui& ui_;
    PaletteLocations locations_;
    LocationsList* list_ = nullptr;
    ListFrame* frame_ = nullptr;
    Words* none_ = nullptr;
    Bindings bindings_;
};

} // namespace tintra
