#pragma once

#include "colour/ColorFormat.h"
#include "colour/ColorProfiles.h"
#include "colour/ContrastTarget.h"
#include "colour/FormatOptions.h"
#include "colour/Harmony.h"
#include "palettes/PaletteExport.h"
#include "platform/FileStamp.h"
#include "platform/Uuid.h"
#include "state/Choices.h"
#include "state/Geometry.h"

#include <nlohmann/json.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// How values of persisted records are written as JSON. `Codec<T>::encode` and `decode` are inverses
// of each other; `decode` answers nothing for JSON of another shape and never throws. Pure.

namespace tintra {

using Json = nlohmann::ordered_json;

/// The document of a text; nothing when it is no JSON, and for one that nests deeper than any
/// record does: copying or writing it could exhaust the stack.
std::optional<Json> parsedJson(std::string_view text);
/// A document as text on one line; bytes that are no UTF-8 become replacement characters.
std::string jsonText(const Json& document);

template <class T>
struct Codec;

template <>
struct Codec<bool> {
    static Json encode(bool value) { return value; }
    static std::optional<bool> decode(const Json& json);
};
template <>
struct Codec<int> {
    static Json encode(int value) { return value; }
    static std::optional<int> decode(const Json& json);
};
template <>
struct Codec<std::size_t> {
    static Json encode(std::size_t value) { return value; }
    static std::optional<std::size_t> decode(const Json& json);
};
/// Finite numbers only.
template <>
struct Codec<double> {
    static Json encode(double value);
    static std::optional<double> decode(const Json& json);
};
template <>
struct Codec<std::string> {
    static Json encode(const std::string& value) { return value; }
    static std::optional<std::string> decode(const Json& json);
};
template <>
struct Codec<Uuid> {
    static Json encode(const Uuid& value) { return value.text(); }
    static std::optional<Uuid> decode(const Json& json);
};
/// {"r", "g", "b", "a"}; the alpha may be missing and is 1 then. A component that is not finite is
/// written as 0.
template <>
struct Codec<WashColor> {
    static Json encode(const WashColor& value);
    static std::optional<WashColor> decode(const Json& json);
};
template <>
struct Codec<FileStamp> {
    static Json encode(const FileStamp& value);
    static std::optional<FileStamp> decode(const Json& json);
};
template <>
struct Codec<FormatOptions> {
    static Json encode(const FormatOptions& value);
    static std::optional<FormatOptions> decode(const Json& json);
};
template <>
struct Codec<StoredFrame> {
    static Json encode(const StoredFrame& value);
    static std::optional<StoredFrame> decode(const Json& json);
};
template <>
struct Codec<StoredSize> {
    static Json encode(const StoredSize& value);
    static std::optional<StoredSize> decode(const Json& json);
};

/// The case of a persisted text, for every closed list that a record holds.
template <class Case>
std::optional<Case> caseOfRaw(std::string_view raw) {
    return choice<Case>(raw);
}
template <>
inline std::optional<HarmonyMode> caseOfRaw(std::string_view raw) {
    return harmonyMode(raw);
}
template <>
inline std::optional<BlendSpace> caseOfRaw(std::string_view raw) {
    return blendSpace(raw);
}
template <>
inline std::optional<ExportFormat> caseOfRaw(std::string_view raw) {
    return exportFormat(raw);
}
template <>
inline std::optional<LabIlluminant> caseOfRaw(std::string_view raw) {
    return labIlluminant(raw);
}
template <>
inline std::optional<Contrast::Target> caseOfRaw(std::string_view raw) {
    return Contrast::target(raw);
}

/// A case of a closed list, by its persisted text.
template <class Case>
requires std::is_enum_v<Case>
struct Codec<Case> {
    static Json encode(Case value) { return std::string(rawValue(value)); }
    static std::optional<Case> decode(const Json& json) {
        const auto raw = Codec<std::string>::decode(json);
        return raw ? caseOfRaw<Case>(*raw) : std::nullopt;
    }
};
template <>
struct Codec<ColorFormat> {
    static Json encode(ColorFormat value) { return std::string(value.rawValue()); }
    static std::optional<ColorFormat> decode(const Json& json) {
        const auto raw = Codec<std::string>::decode(json);
        return raw ? ColorFormat::fromRaw(*raw) : std::nullopt;
    }
};

/// A list of JSON; elements that are not understood are left out.
template <class T>
struct Codec<std::vector<T>> {
    static Json encode(const std::vector<T>& values) {
        Json json = Json::array();
        for (const T& value : values)
            json.push_back(Codec<T>::encode(value));
        return json;
    }
    static std::optional<std::vector<T>> decode(const Json& json) {
        if (!json.is_array()) return std::nullopt;
        std::vector<T> values;
        for (const auto& element : json)
            if (auto value = Codec<T>::decode(element)) values.push_back(*std::move(value));
        return values;
    }
};
template <class T>
struct Codec<std::set<T>> {
    static Json encode(const std::set<T>& values) {
        return Codec<std::vector<T>>::encode({values.begin(), values.end()});
    }
    static std::optional<std::set<T>> decode(const Json& json) {
        auto values = Codec<std::vector<T>>::decode(json);
        if (!values) return std::nullopt;
        return std::set<T>(values->begin(), values->end());
    }
};
/// An object; members that are not understood are left out. A key that is a case is its text.
template <class Key, class T>
struct Codec<std::map<Key, T>> {
    static Json encode(const std::map<Key, T>& values) {
        Json json = Json::object();
        for (const auto& [key, value] : values)
            json[Codec<Key>::encode(key).template get<std::string>()] = Codec<T>::encode(value);
        return json;
    }
    static std::optional<std::map<Key, T>> decode(const Json& json) {
        if (!json.is_object()) return std::nullopt;
        std::map<Key, T> values;
        for (const auto& [name, element] : json.items()) {
            auto key = Codec<Key>::decode(Json(name));
            auto value = Codec<T>::decode(element);
            if (key && value) values.insert_or_assign(*std::move(key), *std::move(value));
        }
        return values;
    }
};

} // namespace tintra
