#include "ui/settings/LibraryTab.h"

#include "state/Models.h"
#include "ui/settings/ListFrame.h"
#include "ui/settings/LocationsList.h"
#include "ui/shared/StyleParts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kMostHeight = 228; ///< of the list, px; a cut row shows that there are more
constexpr int kBorders = 6, kButtonGap = 8;

} // namespace

LibraryTab::LibraryTab(Ui& ui, QWidget* parent)
    : Form(ui.theme, parent), ui_(ui),
      locations_(ui.services, ui.models.preferences(), {ToastWindow::settings, {}}) {
    addFolders();
    addSearch();
    finish();
}

void LibraryTab::addFolders() {
    auto& preferences = ui_.models.preferences();
    list_ = new LocationsList(ui_, locations_);
    frame_ = new ListFrame(theme(), list_, this);
    list_->reveal = [this](const QRectF& part) { frame_->reveal(part); };
    none_ = new Words(theme(), TextStyle::body, Token::ink3,
                      shown("No folders yet. Add one and its palettes appear in the Library and "
                            "the Palette menu."),
                      this);
    none_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    add(worded("Folders"), {frame_, none_, buttons()});
    addCaption(shown("A location's nickname heads its palettes in the Library. The chevron renames "
                     "it, reveals it in the Finder, or stops watching it. Folders are read, never "
                     "changed."));
    auto* system = new QCheckBox(shown("Include macOS system palettes"), this);
    bindings_.bind(Whole{preferences.includeSystemPalettes}, *system);
    append(system);
    auto* rescan = new QCheckBox(shown("Rescan on launch"), this);
    bindings_.bind(Whole{preferences.rescanOnLaunch}, *rescan);
    append(rescan);
    bindings_.follow(preferences.paletteLocations, [this] { takeFolders(); });
    bindings_.follow(ui_.theme.version(), [this] { takeFolders(); });
}

QWidget* LibraryTab::buttons() {
    auto* row = new QWidget(this);
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* layout = new QHBoxLayout(row);
    // A layout cuts what its first button has for the ring off at the edge.
    layout->setContentsMargins(StyleParts::kRingRoom.left(), 4, 0, 0);
    layout->setSpacing(kButtonGap);
    auto* add = new IconButton(theme(), "plus", 16, worded("Add a Folder…"), row);
    QObject::connect(add, &QPushButton::clicked, this, [this] { locations_.add(); });
    auto* rescan = new IconButton(theme(), "rescan", 20, shown("Rescan Palette Folders"), row);
    rescan->setToolTip(shown("Rescan the palette folders"));
    QObject::connect(rescan, &QPushButton::clicked, this, [this] { ui_.models.rescanPalettes(); });
    layout->addWidget(add);
    layout->addWidget(rescan);
    layout->addStretch(1);
    return row;
}

void LibraryTab::takeFolders() {
    const bool some = !ui_.models.preferences().paletteLocations.value().empty();
    frame_->setVisible(some);
    none_->setVisible(!some);
    frame_->setFixedHeight(std::min(list_->heightWanted() + kBorders, theme().scaled(kMostHeight)));
}

void LibraryTab::addSearch() {
    auto& preferences = ui_.models.preferences();
    std::vector<Option<ColourMatch>> matches;
    for (const auto match : allColourMatches())
        matches.push_back({match, shown(badge(match))});
    auto* control = new Segmented(theme(), choicesOf(matches), this);
    bindings_.bind(Whole{preferences.libraryMatch}, *control, matches);
    add(worded("Search by colour"), control);
    auto* caption = addCaption({});
    bindings_.follow(preferences.libraryMatch, [&preferences, caption] {
        caption->setText(shown(explanation(preferences.libraryMatch)));
    });
}

} // namespace tintra
