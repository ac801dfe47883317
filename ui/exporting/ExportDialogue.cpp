#include "ui/exporting/ExportDialogue.h"

#include "palettes/FileNames.h"
#include "platform/Clipboard.h"
#include "platform/Services.h"
#include "platform/Unicode.h"
#include "state/AppState.h"
#include "state/Errands.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"
#include "ui/exporting/ExportFormatList.h"
#include "ui/exporting/ExportParts.h"
#include "ui/exporting/ExportPreview.h"
#include "ui/shared/DialogueBox.h"
#include "ui/shared/FileChooser.h"
#include "ui/shared/NoticeBar.h"
#include "ui/shared/Prose.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"
#include "ui/shared/WarningLine.h"

#include <QCheckBox>
#include <QFile>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr int kWidth = 860, kHeight = 600, kLeastName = 140, kLeastPreview = 120;
constexpr int kMargin = 16, kGap = 8;
constexpr int kFolderWidth = 150;

/// Where the last file of this run was saved.
std::filesystem::path& lastFolder() {
    static std::filesystem::path folder;
    return folder;
}

std::filesystem::path firstFolder(const SaveQuestion& question) {
    if (question.folder) return *question.folder;
    if (!lastFolder().empty()) return lastFolder();
    return QFile::encodeName(FileChooser::usualFolder(OpenQuestion::Of::palette)).toStdString();
}

/// The last two names of a folder's path.
QString shortPath(const std::filesystem::path& folder) {
    const auto parent = folder.parent_path().filename();
    return oneLine((parent.empty() ? folder : parent / folder.filename()).string());
}

QString sizeText(std::size_t bytes) {
    if (bytes < 10'000) return worded("1 byte", "%n bytes", static_cast<qsizetype>(bytes));
    if (bytes < 10'000'000) return QStringLiteral("%1 kB").arg((bytes + 500) / 1000);
    return QStringLiteral("%1 MB").arg((bytes + 500'000) / 1'000'000);
}

QWidget* line(const Theme& theme, bool isUpright) {
    auto* line = new Surface(theme, Token::line);
    isUpright ? line->setFixedWidth(1) : line->setFixedHeight(1);
    return line;
}

/// A scroll area without a frame round a view that scrolls itself to where the keyboard is.
template <class View>
QScrollArea* scrolling(View* view, QPalette::ColorRole ground) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->verticalScrollBar()->setBackgroundRole(ground);
    area->setWidget(view);
    view->wantsVisible = [area](const QRect& place) {
        area->ensureVisible(place.center().x(), place.center().y(), 0, place.height());
    };
    return area;
}

} // namespace

struct ExportDialogue::Parts {
    ExportFormatList* formats = nullptr;
    ColourStrip* strip = nullptr;
    ExportPreview* preview = nullptr;
    NoticeBar* notices = nullptr;
    QCheckBox *upperCase = nullptr, *hash = nullptr;
    FigureLabel* figures = nullptr;
    FileNameField* name = nullptr;
    WarningLine *against = nullptr, *alpha = nullptr;
    QPushButton *folder = nullptr, *save = nullptr, *copy = nullptr, *cancel = nullptr;

    std::vector<WashColor> colors;
    std::vector<std::optional<std::string>> names;
    std::vector<std::string> translucent;
    bool writing = false, stale = false;
    std::vector<QPropertyNotifier> subscriptions;
};

ExportDialogue::ExportDialogue(Ui& ui, AppState& state, SaveQuestion question,
                               std::function<void(std::optional<SaveAnswer>)> answered,
                               QWidget* over)
    : QDialog(over, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint), ui_(ui),
      question_(std::move(question)), answered_(std::move(answered)),
      folder_(firstFolder(question_)), parts_(std::make_unique<Parts>()) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(worded("Save %1 As — Tintra").arg(oneLine(question_.name, 80)));
    build();
    takePalette(state);
    subscribe(state);
    chooseFormat();
}

ExportDialogue::~ExportDialogue() = default;

void ExportDialogue::build() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(buildFormats());
    row->addWidget(line(ui_.theme, true));
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(buildPreview(), 1);
    column->addWidget(line(ui_.theme, false));
    column->addWidget(buildFoot());
    row->addLayout(column, 1);
    connectParts();
    parts_->save->setDefault(true);
    resize(ui_.theme.scaled(kWidth), ui_.theme.scaled(kHeight));
    parts_->name->selectAll();
    parts_->name->setFocus();
}

QWidget* ExportDialogue::buildFormats() {
    parts_->formats = new ExportFormatList(ui_.theme);
    parts_->formats->choose(exportFormat(question_.format).value_or(ExportFormat::ase));
    auto* area = scrolling(parts_->formats, QPalette::Button);
    area->setFixedWidth(parts_->formats->sizeHint().width());
    return area;
}

QWidget* ExportDialogue::buildPreview() {
    parts_->strip = new ColourStrip(ui_);
    parts_->preview = new ExportPreview(ui_);
    auto* ground = new Surface(ui_.theme, Token::ground);
    auto* column = new QVBoxLayout(ground);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(12);
    column->addWidget(parts_->strip);
    auto* frame = new RaisedFrame(ui_.theme, scrolling(parts_->preview, QPalette::Base));
    frame->setMinimumHeight(kLeastPreview);
    column->addWidget(frame, 1);
    parts_->notices = new NoticeBar(ui_.theme, ui_.services.mainLoop, frame);
    return ground;
}

QWidget* ExportDialogue::buildFoot() {
    auto& p = *parts_;
    auto* foot = new QWidget;
    auto* column = new QVBoxLayout(foot);
    column->setContentsMargins(kMargin, kGap, kMargin, kMargin);
    column->setSpacing(kGap);

    p.upperCase = new QCheckBox(worded("Upper-case hex"));
    p.hash = new QCheckBox(worded("# before hex"));
    p.figures = new FigureLabel(ui_.theme);
    auto* options = new QHBoxLayout;
    options->addWidget(p.upperCase);
    options->addSpacing(kMargin);
    options->addWidget(p.hash);
    options->addStretch(1);
    options->addWidget(p.figures);
    column->addLayout(options);

    p.alpha = new WarningLine(ui_.theme, 0);
    p.against = new WarningLine(ui_.theme, 0);
    column->addWidget(p.alpha);
    column->addWidget(p.against);

    p.name = new FileNameField(ui_.theme);
    const auto proposed = fitFileName(question_.name);
    p.name->setText(fromUtf8(proposed));
    p.name->setMinimumWidth(ui_.theme.scaled(kLeastName));
    p.folder = new QPushButton;
    p.save = new QPushButton(shown(SaveTexts::kSave));
    p.copy = new QPushButton(worded("Copy"));
    p.cancel = new QPushButton(shown(SaveTexts::kCancel));
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(p.name, 1);
    row->addWidget(p.folder);
    row->addSpacing(kGap);
    for (auto* button : {p.save, p.copy, p.cancel})
        row->addWidget(button);
    column->addLayout(row);
    showFolder();
    return foot;
}

void ExportDialogue::connectParts() {
    auto& p = *parts_;
    p.formats->changed = [this](ExportFormat) { chooseFormat(); };
    connect(p.upperCase, &QCheckBox::clicked, this, [this] { changeOptions(); });
    connect(p.hash, &QCheckBox::clicked, this, [this] { changeOptions(); });
    connect(p.name, &QLineEdit::textChanged, this, [this] {
        judgeName();
        refresh();
    });
    connect(p.folder, &QPushButton::clicked, this, [this] { chooseFolder(); });
    connect(p.save, &QPushButton::clicked, this, [this] { save(); });
    connect(p.copy, &QPushButton::clicked, this, [this] { copy(); });
    connect(p.cancel, &QPushButton::clicked, this, [this] { reject(); });
}

void ExportDialogue::subscribe(AppState& state) {
    auto& all = parts_->subscriptions;
    // The snapshot is what is shown, so nothing here reads the model when it is gone.
    all.emplace_back(state.customPaletteVersion(), [this, &state] {
        takePalette(state);
        judgeAlpha();
        refresh();
    });
    all.emplace_back(ui_.models.preferences().formatOptions, [this] {
        showOptions();
        refresh();
    });
}

void ExportDialogue::takePalette(const AppState& state) {
    auto& p = *parts_;
    p.colors = state.colors();
    p.names = state.names();
    p.translucent.clear();
    for (std::size_t i = 0; i < p.colors.size(); ++i)
        if (!p.colors[i].isOpaque()) p.translucent.push_back(toUtf8(oneLine(state.swatchName(i))));
    p.strip->setColors(p.colors);
}

ExportFormat ExportDialogue::format() const {
    return parts_->formats->chosen();
}

void ExportDialogue::chooseFormat() {
    const auto extension = QLatin1Char('.') + fromUtf8(fileExtension(format()));
    parts_->name->setExtension(extension);
    parts_->copy->setEnabled(isText(format()) || format() == ExportFormat::png);
    showOptions();
    judgeName();
    judgeAlpha();
    refresh();
}

void ExportDialogue::showOptions() {
    const auto options = ui_.models.preferences().formatOptions.value();
    const auto reading = hexReading(format());
    parts_->upperCase->setEnabled(reading != HexReading::none);
    parts_->upperCase->setChecked(options.cssUppercase);
    parts_->hash->setEnabled(reading == HexReading::caseAndHash);
    parts_->hash->setChecked(options.cssPrefixHash || reading == HexReading::letterCase);
}

void ExportDialogue::changeOptions() {
    auto options = ui_.models.preferences().formatOptions.value();
    options.cssUppercase = parts_->upperCase->isChecked();
    if (parts_->hash->isEnabled()) options.cssPrefixHash = parts_->hash->isChecked();
    ui_.models.preferences().formatOptions = options;
}

std::string ExportDialogue::fileName() const {
    const auto extension = "." + std::string(fileExtension(format()));
    auto name = std::string(trimmed(toUtf8(parts_->name->text())));
    if (name.size() > extension.size() && asciiLowerCased(name).ends_with(extension))
        name.resize(name.size() - extension.size());
    return name;
}

std::filesystem::path ExportDialogue::target() const {
    return folder_ / (fileName() + "." + std::string(fileExtension(format())));
}

void ExportDialogue::judgeName() {
    const auto refused = whyUnfit(fileName());
    parts_->against->warn(refused ? shown(*refused) : QString());
    parts_->save->setEnabled(!refused && !parts_->colors.empty());
}

void ExportDialogue::judgeAlpha() {
    const bool loses = !holdsAlpha(format()) && !parts_->translucent.empty();
    parts_->alpha->warn(
        loses ? shown(SaveTexts::alphaNamesText(fileExtension(format()), parts_->translucent))
              : QString());
}

void ExportDialogue::showFolder() {
    auto* button = parts_->folder;
    const auto words = button->fontMetrics().elidedText(shortPath(folder_), Qt::ElideMiddle,
                                                        ui_.theme.scaled(kFolderWidth) - 52);
    button->setText(QString(words).replace(QLatin1Char('&'), QStringLiteral("&&")));
    button->setIconSize(QSize(20, 20));
    button->setIcon(ui_.theme.icon("folder", 20, ui_.theme.color(Token::ink), devicePixelRatioF()));
    button->setToolTip(oneLine(folder_.string(), 500));
    button->setAccessibleName(worded("Folder: %1").arg(oneLine(folder_.string(), 500)));
}

void ExportDialogue::chooseFolder() {
    FileChooser::askFolder(folder_, worded("Choose a folder to save in"), this,
                           [this](const std::optional<std::filesystem::path>& folder) {
                               if (!folder) return;
                               folder_ = *folder;
                               showFolder();
                               judgeName();
                           });
}

void ExportDialogue::refresh() {
    auto& p = *parts_;
    p.stale = p.writing;
    if (p.writing) return;
    p.writing = true;
    ExportJob job{format(), p.colors, p.names, fileName(),
                  ui_.models.preferences().formatOptions.value()};
    inBackground(
        ui_.services, alive_, [job = std::move(job)] { return sampleOf(job); },
        [this](ExportSample sample) {
            parts_->writing = false;
            show(std::move(sample));
            if (parts_->stale) refresh();
        });
}

void ExportDialogue::show(ExportSample sample) {
    const auto bytes = sample.content ? sample.content->size() : 0;
    parts_->figures->setText(
        worded("1 swatch", "%n swatches", static_cast<qsizetype>(parts_->colors.size())) +
        QStringLiteral(" · ") + sizeText(bytes));
    parts_->preview->setSample(std::move(sample));
}

void ExportDialogue::copy() {
    // What is shown may be of a moment ago.
    ExportJob job{format(), parts_->colors, parts_->names, fileName(),
                  ui_.models.preferences().formatOptions.value()};
    inBackground(
        ui_.services, alive_,
        [job = std::move(job)] {
            return PaletteExport::data(job.format, job.colors, job.names, job.name, job.options);
        },
        [this, format = format()](std::optional<Bytes> content) {
            if (!content) return;
            Clipboard::Content copied;
            if (isText(format))
                copied.text = asText(*content);
            else
                copied.png = *std::move(content);
            ui_.services.clipboard.set(copied);
            const auto said = worded("Copied %1").arg(shown(title(format)));
            ui_.notices.add(said);
            parts_->notices->present(said, kBriefly, {});
        });
}

void ExportDialogue::save() {
    parts_->save->setEnabled(false);
    inBackground(
        ui_.services, alive_,
        [file = target()] {
            std::error_code ignored;
            return Place{std::filesystem::is_directory(file.parent_path(), ignored),
                         std::filesystem::exists(file, ignored)};
        },
        [this](Place place) { saveIn(place); });
}

void ExportDialogue::saveIn(const Place& place) {
    judgeName();
    if (!parts_->save->isEnabled()) return;
    if (!place.folderIsThere) {
        parts_->against->warn(worded("That folder is not there any more. Choose another one."));
        return;
    }
    const auto file = target();
    if (!place.fileIsThere) {
        accept(file);
        return;
    }
    const Question question{
        SaveTexts::replaceTitle(file.filename().string()),
        "A file with that name is already in that folder. Replacing it overwrites what it holds.",
        {std::string(SaveTexts::kReplace), std::string(SaveTexts::kCancel)},
        question_.over};
    auto* box = new DialogueBox(ui_.theme, question, this);
    box->answered = [this, file](std::size_t button) {
        if (button == 0) accept(file);
    };
    box->open();
}

void ExportDialogue::accept(const std::filesystem::path& file) {
    lastFolder() = folder_;
    answer_ = SaveAnswer{file, std::string(rawValue(format()))};
    QDialog::accept();
}

void ExportDialogue::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange && parts_->folder) showFolder();
    QDialog::changeEvent(event);
}

void ExportDialogue::done(int result) {
    QDialog::done(result);
    if (const auto answered = std::exchange(answered_, {})) answered(answer_);
}

} // namespace tintra
