#pragma once

#include "platform/Dialogues.h"
#include "ui/Ui.h"
#include "ui/exporting/ExportSample.h"

#include <QDialog>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace tintra {

class AppState;

/// Save As: the formats at the left, what the file will be like at the right, where it goes below.
/// Deletes itself when it closes; when its window goes first it answers nothing. Shown by `open`.
/// Main loop.
class ExportDialogue final : public QDialog {
public:
    /// `answered` is told once, when the dialogue closes: nothing for Cancel.
    ExportDialogue(Ui& ui, AppState& state, SaveQuestion question,
                   std::function<void(std::optional<SaveAnswer>)> answered,
                   QWidget* over = nullptr);
    ~ExportDialogue() override;

    void done(int result) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Parts;
    /// What is to be said against saving under a name in a folder, found beside the main loop.
    struct Place {
        bool folderIsThere = false, fileIsThere = false;
    };

    void build();
    QWidget* buildFormats();
    QWidget* buildPreview();
    QWidget* buildFoot();
    void connectParts();
    void subscribe(AppState& state);

    void takePalette(const AppState& state);
    void chooseFormat();
    /// The options that the format reads, as the preferences have them.
    void showOptions();
    void changeOptions();
    /// What stands against the name, and the buttons that are off because of it.
    void judgeName();
    void judgeAlpha();
    void showFolder();
    void chooseFolder();
    /// Writes the file for show, beside the main loop; what was asked last is shown.
    void refresh();
    void show(ExportSample sample);
    void copy();
    void save();
    void saveIn(const Place& place);
    void accept(const std::filesystem::path& file);

    ExportFormat format() const;
    /// As it is typed, without the extension if that was typed too.
    std::string fileName() const;
    std::filesystem::path target() const;

    Ui& ui_;
    const SaveQuestion question_;
    std::function<void(std::optional<SaveAnswer>)> answered_;
    std::optional<SaveAnswer> answer_;
    std::filesystem::path folder_;
    std::unique_ptr<Parts> parts_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace tintra
