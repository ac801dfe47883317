#include "state/PreferencesCodec.h"

#include "state/Record.h"

#include <QByteArray>

namespace tintra {

template <>
struct Codec<std::filesystem::path> {
    static Json encode(const std::filesystem::path& value) { return value.string(); }
    static std::optional<std::filesystem::path> decode(const Json& json) {
        const auto text = Codec<std::string>::decode(json);
        return text && !text->empty() ? std::optional<std::filesystem::path>(*text) : std::nullopt;
    }
};

namespace {

constexpr std::tuple kFields{
    Field{"id", &PaletteLocation::id},
    Field{"nickname", &PaletteLocation::nickname, Absent::standsIn},
    Field{"path", &PaletteLocation::path},
    Field{"tag", &PaletteLocation::tag},
    Field{"isEnabled", &PaletteLocation::isEnabled, Absent::standsIn},
    Field{"includesStylesheets", &PaletteLocation::includesStylesheets, Absent::standsIn},
    Field{"bookmark", &PaletteLocation::bookmark},
};

} // namespace

Json Codec<Bytes>::encode(const Bytes& value) {
    const auto size = static_cast<qsizetype>(value.size());
    return QByteArray::fromRawData(reinterpret_cast<const char*>(value.data()), size)
        .toBase64()
        .toStdString();
}

std::optional<Bytes> Codec<Bytes>::decode(const Json& json) {
    const auto text = Codec<std::string>::decode(json);
    if (!text) return std::nullopt;
    const auto result = QByteArray::fromBase64Encoding(QByteArray::fromStdString(*text),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!result) return std::nullopt;
    const auto* begin = reinterpret_cast<const Bytes::value_type*>(result.decoded.constData());
    return Bytes(begin, begin + result.decoded.size());
}

Json Codec<PaletteLocation>::encode(const PaletteLocation& value) {
    return encoded(value, kFields);
}

std::optional<PaletteLocation> Codec<PaletteLocation>::decode(const Json& json) {
    return decoded(json, kFields);
}

} // namespace tintra
