#include "ui/shared/ColourMime.h"

#include "state/Codec.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"

#include <QBuffer>
#include <QImage>
#include <QUrl>
#include <array>
#include <utility>

namespace tintra {
namespace {

constexpr qsizetype kMostFiles = 1000;
constexpr qsizetype kMostText = qsizetype{4} << 20;

/// The sources that a drag within the program names, by their index in the variant.
constexpr std::array kSources{"foreign", "swatch", "band",     "seed",
                              "column",  "well",   "contrast", "library"};

Json encodedOrigin(const PaletteOrigin& origin) {
    Json json{{"window", origin.windowID.text()},
              {"swatch", origin.swatchID.text()},
              {"index", origin.index}};
    if (origin.paletteName) json["palette"] = *origin.paletteName;
    return json;
}

std::optional<PaletteOrigin> decodedOrigin(const Json& json) {
    if (!json.is_object()) return std::nullopt;
    const auto window = Codec<Uuid>::decode(json.value("window", Json()));
    const auto swatch = Codec<Uuid>::decode(json.value("swatch", Json()));
    const auto index = Codec<int>::decode(json.value("index", Json()));
    if (!window || !swatch || !index || *index < 0) return std::nullopt;
    return PaletteOrigin{Codec<std::string>::decode(json.value("palette", Json())), *window,
                         *swatch, static_cast<std::size_t>(*index)};
}

QByteArray encoded(const Drag& drag) {
    Json json{{"colour", Codec<WashColor>::encode(drag.color)},
              {"source", kSources[drag.source.index()]}};
    if (drag.name) json["name"] = *drag.name;
    if (const auto* swatch = std::get_if<DragOfSwatch>(&drag.source))
        json["origin"] = encodedOrigin(swatch->origin);
    if (const auto* column = std::get_if<DragOfBenchColumn>(&drag.source))
        json["id"] = column->column.text();
    if (const auto* entry = std::get_if<DragOfContrastEntry>(&drag.source))
        json["id"] = entry->entry.text();
    return QByteArray::fromStdString(jsonText(json));
}

/// Another process can offer this type too, so nothing in it is trusted.
std::optional<Drag> decoded(const QByteArray& bytes) {
    const auto json = parsedJson(bytes.toStdString());
    if (!json || !json->is_object()) return std::nullopt;
    const auto color = Codec<WashColor>::decode(json->value("colour", Json()));
    if (!color) return std::nullopt;
    Drag drag{*color, Codec<std::string>::decode(json->value("name", Json())),
              DragOfForeignColour{}};
    const auto source = Codec<std::string>::decode(json->value("source", Json())).value_or("");
    const auto id = Codec<Uuid>::decode(json->value("id", Json()));
    if (source == "swatch")
        if (const auto origin = decodedOrigin(json->value("origin", Json())))
            drag.source = DragOfSwatch{*origin};
    if (source == "column" && id) drag.source = DragOfBenchColumn{*id};
    if (source == "contrast" && id) drag.source = DragOfContrastEntry{*id};
    if (source == "band") drag.source = DragOfBand{};
    if (source == "seed") drag.source = DragOfSeed{};
    if (source == "well") drag.source = DragOfWell{};
    if (source == "library") drag.source = DragOfLibrarySwatch{};
    return drag;
}

std::vector<std::filesystem::path> localFiles(const QMimeData& data) {
    std::vector<std::filesystem::path> files;
    if (!data.hasUrls()) return files;
    for (const auto& url : data.urls()) {
        if (!url.isLocalFile()) continue;
        files.emplace_back(toUtf8(url.toLocalFile()));
        if (std::cmp_greater_equal(files.size(), kMostFiles)) break;
    }
    return files;
}

std::optional<QByteArray> picture(const QMimeData& data) {
    for (const auto* format : {"image/png", "image/jpeg", "image/webp", "image/tiff", "image/bmp"})
        if (const auto type = QString::fromLatin1(format); data.hasFormat(type))
            return data.data(type);
    if (!data.hasImage()) return std::nullopt;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const auto image = qvariant_cast<QImage>(data.imageData());
    if (image.isNull() || !image.save(&buffer, "PNG")) return std::nullopt;
    return bytes;
}

} // namespace

std::unique_ptr<QMimeData> mimeOf(const Drag& drag, const QString& code) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(kColourMimeType), encoded(drag));
    data->setColorData(toQColor(drag.color));
    data->setText(code);
    return data;
}

std::unique_ptr<QMimeData> mimeOfPalette(const std::filesystem::path& file) {
    auto data = std::make_unique<QMimeData>();
    data->setUrls({QUrl::fromLocalFile(fromUtf8(file.string()))});
    return data;
}

bool Dropped::isEmpty() const {
    return !colour && files.empty() && !text && !picture;
}

bool isUnderstood(const QMimeData& data) {
    return data.hasFormat(QString::fromLatin1(kColourMimeType)) || data.hasColor() ||
           data.hasUrls() || data.hasText() || data.hasImage();
}

Dropped dropped(const QMimeData& data) {
    Dropped found;
    if (const auto own = QString::fromLatin1(kColourMimeType); data.hasFormat(own))
        found.colour = decoded(data.data(own));
    if (!found.colour && data.hasColor())
        if (const auto color = qvariant_cast<QColor>(data.colorData()); color.isValid())
            found.colour = Drag{fromQColor(color), std::nullopt, DragOfForeignColour{}};
    if (found.colour) return found;
    found.files = localFiles(data);
    if (!found.files.empty()) return found;
    found.picture = picture(data);
    if (found.picture) return found;
    if (data.hasText())
        if (const auto text = data.text(); !text.isEmpty()) found.text = text.left(kMostText);
    return found;
}

} // namespace tintra
