#include "platform/desktop/pictures/SvgFilter.h"

#include "platform/desktop/pictures/SvgCost.h"

#include <QBuffer>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace tintra {

namespace {

/// A name without the prefix of its namespace.
QStringView localName(QStringView name) {
    return name.mid(name.indexOf(u':') + 1);
}

/// What an embedded picture decodes to; nothing when it is none of the kinds that are kept.
std::optional<std::uint64_t> decodedBytes(const QByteArray& picture) {
    for (const char* kind : {"png", "jpeg", "gif", "webp"}) {
        QBuffer buffer;
        buffer.setData(picture);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer, kind);
        reader.setAutoDetectImageFormat(false);
        if (!reader.canRead()) continue;
        const auto size = reader.size();
        if (size.isEmpty()) return std::nullopt;
        return static_cast<std::uint64_t>(size.width()) *
               static_cast<std::uint64_t>(size.height()) * 8;
    }
    return std::nullopt;
}

class SvgFilter {
public:
    SvgFilter(const QByteArray& svg, std::uint64_t pictureBytes)
        : in_(svg), out_(&text_), pictureBytes_(pictureBytes) {
        // Prefixed names are handed on as they are written.
        in_.setNamespaceProcessing(false);
    }

    std::optional<QByteArray> run() {
        while (!in_.atEnd()) {
            const auto token = in_.readNext();
            if (token == QXmlStreamReader::StartElement) {
                if (!startElement()) return std::nullopt;
            } else if (token == QXmlStreamReader::EndElement) {
                out_.writeEndElement();
                cost_.leave();
            } else if (token == QXmlStreamReader::Characters) {
                out_.writeCharacters(in_.text().toString());
                cost_.text(in_.text());
            }
        }
        if (in_.hasError() || !cost_.isBearable()) return std::nullopt;
        return text_;
    }

private:
    bool startElement() {
        const auto name = localName(in_.name());
        const auto attributes = in_.attributes();
        if (text_.isEmpty() && name != u"svg") return false;
        out_.writeStartElement(in_.name().toString());
        QString target;
        for (const auto& attribute : attributes)
            if (const auto value = kept(name, attribute)) {
                out_.writeAttribute(attribute.qualifiedName().toString(), *value);
                if (localName(attribute.qualifiedName()) == u"href") target = value->mid(1);
            }
        return cost_.enter(attributes.value(QLatin1String("id")).toString(),
                           name == u"use" ? target : QString());
    }

    /// The value that an attribute keeps; nothing when it is left out.
    std::optional<QString> kept(QStringView element, const QXmlStreamAttribute& attribute) {
        const auto name = localName(attribute.qualifiedName());
        const auto value = attribute.value();
        if (name != u"href" && name != u"src") return value.toString();
        if (value.startsWith(u'#')) return value.toString();
        return element == u"image" ? embedded(value) : std::nullopt;
    }

    std::optional<QString> embedded(QStringView value) {
        const auto marker = value.indexOf(QLatin1String("base64,"));
        if (!value.startsWith(QLatin1String("data:")) || marker < 0) return std::nullopt;
        const auto picture = QByteArray::fromBase64(value.mid(marker + 7).toLatin1());
        const auto bytes = decodedBytes(picture);
        if (!bytes || *bytes > pictureBytes_) return std::nullopt;
        pictureBytes_ -= *bytes;
        return QLatin1String("data:image;base64,") + QLatin1String(picture.toBase64());
    }

    QXmlStreamReader in_;
    QByteArray text_;
    QXmlStreamWriter out_;
    SvgCost cost_;
    std::uint64_t pictureBytes_;
};

} // namespace

std::optional<QByteArray> selfContainedSvg(const QByteArray& svg, std::uint64_t pictureBytes) {
    return SvgFilter(svg, pictureBytes).run();
}

} // namespace tintra
