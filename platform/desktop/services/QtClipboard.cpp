#include "platform/desktop/services/QtClipboard.h"

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QMimeData>
#include <cmath>
#include <memory>

namespace tintra {

namespace {

/// Also makes a number of what is none.
float component(double value) {
    return static_cast<float>(std::fmin(std::fmax(value, 0.0), 1.0));
}

} // namespace

void QtClipboard::set(const Content& content) {
    auto data = std::make_unique<QMimeData>();
    if (!content.text.empty() || content.png.empty())
        data->setText(QString::fromStdString(content.text));
    if (!content.png.empty())
        data->setData(QStringLiteral("image/png"),
                      QByteArray(reinterpret_cast<const char*>(content.png.data()),
                                 static_cast<qsizetype>(content.png.size())));
    if (!content.html.empty()) data->setHtml(QString::fromStdString(content.html));
    if (content.colour) {
        const auto [r, g, b, a] = *content.colour;
        data->setColorData(
            QColor::fromRgbF(component(r), component(g), component(b), component(a)));
    }
    QGuiApplication::clipboard()->setMimeData(data.release());
}

Clipboard::Content QtClipboard::content() const {
    Content content;
    const auto* data = QGuiApplication::clipboard()->mimeData();
    if (data == nullptr) return content;
    if (data->hasText()) content.text = data->text().toStdString();
    if (const auto colour = data->colorData().value<QColor>(); data->hasColor() && colour.isValid())
        content.colour = {colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF()};
    return content;
}

} // namespace tintra
