#include "ui/shared/FileChooser.h"

#include "palettes/PaletteFile.h"
#include "palettes/Stylesheet.h"
#include "ui/shared/Text.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <array>
#include <initializer_list>
#include <span>
#include <string_view>
#include <utility>

namespace tintra {
namespace {

/// The files that Pictures reads, by their usual names; it tells them by their content.
constexpr std::array<std::string_view, 12> kPictures{"png", "jpg", "jpeg", "webp", "tif",  "tiff",
                                                     "gif", "bmp", "svg",  "avif", "heic", "heif"};

QString filter(const char* title, std::initializer_list<std::span<const std::string_view>> lists) {
    QStringList patterns;
    for (const auto& list : lists)
        for (const auto extension : list)
            patterns << QStringLiteral("*.") + fromUtf8(extension);
    return QStringLiteral("%1 (%2)").arg(worded(title), patterns.join(QLatin1Char(' ')));
}

QStringList filters(OpenQuestion::Of kind) {
    const auto all = worded("All files") + QStringLiteral(" (*)");
    switch (kind) {
    case OpenQuestion::Of::palette:
        return {filter("Palettes", {PaletteFile::readableExtensions(), Stylesheet::extensions()}),
                all};
    case OpenQuestion::Of::picture:
        return {filter("Pictures", {kPictures}), all};
    case OpenQuestion::Of::folder:
        break;
    }
    return {};
}

std::filesystem::path pathOf(const QString& name) {
    return QFile::encodeName(name).toStdString();
}

/// Shows it without blocking and hands over what is chosen.
void present(QFileDialog* dialogue, FileChooser::Answered answered) {
    dialogue->setAttribute(Qt::WA_DeleteOnClose);
    dialogue->setAttribute(Qt::WA_QuitOnClose, false);
    QObject::connect(dialogue, &QFileDialog::finished, dialogue,
                     [dialogue, answered = std::move(answered)](int result) {
                         // The list of completions is still open, and while it is, Qt passes
                         // over the news of which window is active next.
                         if (auto* popup = QApplication::activePopupWidget()) popup->close();
                         const auto files = dialogue->selectedFiles();
                         if (result == QDialog::Accepted && !files.isEmpty())
                             answered(pathOf(files.first()));
                         else
                             answered(std::nullopt);
                     });
    dialogue->open();
}

} // namespace

QString FileChooser::usualFolder(OpenQuestion::Of kind) {
    const auto named = QStandardPaths::writableLocation(kind == OpenQuestion::Of::picture
                                                            ? QStandardPaths::PicturesLocation
                                                            : QStandardPaths::DocumentsLocation);
    return QFileInfo(named).isDir() ? named : QDir::homePath();
}

void FileChooser::ask(const OpenQuestion& question, QWidget* over, Answered answered) {
    const auto kind = question.kind;
    const auto known = folders_.find(kind);
    auto* dialogue = new QFileDialog(over, shown(question.prompt),
                                     known == folders_.end() ? usualFolder(kind) : known->second);
    const bool isFolder = kind == OpenQuestion::Of::folder;
    dialogue->setFileMode(isFolder ? QFileDialog::Directory : QFileDialog::ExistingFile);
    dialogue->setOption(QFileDialog::ShowDirsOnly, isFolder);
    dialogue->setNameFilters(filters(kind));
    present(dialogue, [this, kind, isFolder, answered = std::move(answered)](
                          const std::optional<std::filesystem::path>& file) {
        if (file)
            folders_[kind] = QFile::decodeName((isFolder ? *file : file->parent_path()).c_str());
        answered(file);
    });
}

void FileChooser::askFolder(const std::filesystem::path& from, const QString& prompt, QWidget* over,
                            Answered answered) {
    auto* dialogue = new QFileDialog(over, prompt, QFile::decodeName(from.c_str()));
    dialogue->setFileMode(QFileDialog::Directory);
    dialogue->setOption(QFileDialog::ShowDirsOnly);
    present(dialogue, std::move(answered));
}

} // namespace tintra
