#pragma once

#include <QPlainTextEdit>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace tintra {

class Theme;

/// Plain text in the mono face, line below line, each with room for a chip beside it. Text that is
/// too long to be edited without delay is kept whole, but only its beginning is shown, and it can
/// only be replaced. Main loop.
class PasteEditor final : public QPlainTextEdit {
public:
    explicit PasteEditor(const Theme& theme, QWidget* parent = nullptr);

    /// All of it, lines separated by line feeds.
    QString text() const;
    /// Only the beginning is shown.
    bool isCut() const { return whole_.has_value(); }
    void empty();
    /// Fonts and distances anew, after the theme has changed.
    void follow();

    struct Line {
        std::size_t number; ///< from 0
        QRectF rect;        ///< in the viewport
    };
    std::vector<Line> visibleLines() const;

    /// Is told of text that is too long to be taken.
    std::function<void()> refused;

    /// The most characters that are taken.
    static constexpr qsizetype kMost = qsizetype{4} << 20;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    class Spaced;
    /// The whole text once something stands in the place of the selection.
    QString with(const QString& inserted) const;
    void showBeginning(QString whole);

    const Theme& theme_;
    Spaced* layout_;
    std::optional<QString> whole_; ///< when only its beginning is shown
};

} // namespace tintra
