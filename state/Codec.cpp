#include "state/Codec.h"

#include "state/Record.h"

#include <cmath>
#include <limits>

namespace tintra {
namespace {

/// NaN and infinities have no form in JSON.
double finite(double value) {
    return std::isfinite(value) ? value : 0;
}

constexpr int kDeepest = 64;

bool nestsTooDeep(std::string_view text) {
    int depth = 0;
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"') isQuoted = !isQuoted;
        if (isQuoted) {
            if (c == '\\') ++i;
            continue;
        }
        if (c == '[' || c == '{') ++depth;
        if (c == ']' || c == '}') --depth;
        if (depth > kDeepest) return true;
    }
    return false;
}

constexpr std::tuple kOptionFields{
    Field{"decimals", &FormatOptions::decimals, Absent::standsIn},
    Field{"useFractions", &FormatOptions::useFractions, Absent::standsIn},
    Field{"removeWhitespace", &FormatOptions::removeWhitespace, Absent::standsIn},
    Field{"cssUppercase", &FormatOptions::cssUppercase, Absent::standsIn},
    Field{"cssPrefixHash", &FormatOptions::cssPrefixHash, Absent::standsIn},
};
constexpr std::tuple kFrameFields{
    Field{"x", &StoredFrame::x},
    Field{"y", &StoredFrame::y},
    Field{"width", &StoredFrame::width},
    Field{"height", &StoredFrame::height},
};
constexpr std::tuple kSizeFields{
    Field{"width", &StoredSize::width},
    Field{"height", &StoredSize::height},
};

} // namespace

std::optional<Json> parsedJson(std::string_view text) {
    if (nestsTooDeep(text)) return std::nullopt;
    auto document = Json::parse(text, nullptr, false);
    if (document.is_discarded()) return std::nullopt;
    return document;
}

std::string jsonText(const Json& document) {
    return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::optional<bool> Codec<bool>::decode(const Json& json) {
    return json.is_boolean() ? std::optional(json.get<bool>()) : std::nullopt;
}

std::optional<int> Codec<int>::decode(const Json& json) {
    if (!json.is_number()) return std::nullopt;
    const auto value = json.get<double>();
    const bool isWhole = value == std::floor(value);
    if (!isWhole || value < std::numeric_limits<int>::min() ||
        value > std::numeric_limits<int>::max())
        return std::nullopt;
    return static_cast<int>(value);
}

std::optional<std::size_t> Codec<std::size_t>::decode(const Json& json) {
    const auto value = Codec<int>::decode(json);
    if (!value || *value < 0) return std::nullopt;
    return static_cast<std::size_t>(*value);
}

Json Codec<double>::encode(double value) {
    return finite(value);
}

std::optional<double> Codec<double>::decode(const Json& json) {
    if (!json.is_number()) return std::nullopt;
    const auto value = json.get<double>();
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<std::string> Codec<std::string>::decode(const Json& json) {
    return json.is_string() ? std::optional(json.get<std::string>()) : std::nullopt;
}

std::optional<Uuid> Codec<Uuid>::decode(const Json& json) {
    const auto text = Codec<std::string>::decode(json);
    return text ? Uuid::fromText(*text) : std::nullopt;
}

Json Codec<WashColor>::encode(const WashColor& value) {
    return {{"r", finite(value.r)},
            {"g", finite(value.g)},
            {"b", finite(value.b)},
            {"a", finite(value.a)}};
}

std::optional<WashColor> Codec<WashColor>::decode(const Json& json) {
    if (!json.is_object()) return std::nullopt;
    const auto component = [&](const char* key) {
        const auto found = json.find(key);
        return found == json.end() ? std::nullopt : Codec<double>::decode(*found);
    };
    const auto r = component("r"), g = component("g"), b = component("b");
    const auto a = json.contains("a") ? component("a") : 1;
    if (!r || !g || !b || !a) return std::nullopt;
    return WashColor{*r, *g, *b, *a};
}

// Whole numbers of 64 bits: doubles would round them.
Json Codec<FileStamp>::encode(const FileStamp& value) {
    return {{"modified", value.modified}, {"size", value.size}, {"inode", value.inode}};
}

std::optional<FileStamp> Codec<FileStamp>::decode(const Json& json) {
    if (!json.is_object()) return std::nullopt;
    const auto modified = json.find("modified"), size = json.find("size"),
               inode = json.find("inode");
    if (modified == json.end() || size == json.end() || inode == json.end()) return std::nullopt;
    const bool areWhole =
        modified->is_number_integer() && size->is_number_unsigned() && inode->is_number_unsigned();
    if (!areWhole) return std::nullopt;
    return FileStamp{modified->get<std::int64_t>(), size->get<std::uint64_t>(),
                     inode->get<std::uint64_t>()};
}

Json Codec<FormatOptions>::encode(const FormatOptions& value) {
    return encoded(value, kOptionFields);
}

std::optional<FormatOptions> Codec<FormatOptions>::decode(const Json& json) {
    return decoded(json, kOptionFields);
}

Json Codec<StoredFrame>::encode(const StoredFrame& value) {
    return encoded(value, kFrameFields);
}

std::optional<StoredFrame> Codec<StoredFrame>::decode(const Json& json) {
    return decoded(json, kFrameFields);
}

Json Codec<StoredSize>::encode(const StoredSize& value) {
    return encoded(value, kSizeFields);
}

std::optional<StoredSize> Codec<StoredSize>::decode(const Json& json) {
    return decoded(json, kSizeFields);
}

} // namespace tintra
