#pragma once

#include "colour/WashColor.h"
#include "ui/shared/Theme.h"

#include <QLineEdit>
#include <QWidget>
#include <vector>

namespace tintra {

struct Ui;

/// Colours side by side in a strip with round corners.
class ColourStrip final : public QWidget {
public:
    explicit ColourStrip(Ui& ui, QWidget* parent = nullptr);
    void setColors(std::vector<WashColor> colors);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Ui& ui_;
    std::vector<WashColor> colors_;
};

/// The name of a file, with the extension that it gets behind what is typed.
class FileNameField final : public QLineEdit {
public:
    explicit FileNameField(const Theme& theme, QWidget* parent = nullptr);
    /// ".css".
    void setExtension(const QString& extension);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    QString extension_;
};

/// A short text with changing numbers in it.
class FigureLabel final : public QWidget {
public:
    explicit FigureLabel(const Theme& theme, QWidget* parent = nullptr);
    void setText(const QString& text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    QString text_;
};

/// An area, or a line, of one colour of the interface.
class Surface final : public QWidget {
public:
    Surface(const Theme& theme, Token token, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
    const Token token_;
};

/// A rounded field of the `raised` colour round what stands in it.
class RaisedFrame final : public QWidget {
public:
    RaisedFrame(const Theme& theme, QWidget* content, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
};

} // namespace tintra
