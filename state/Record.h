#pragma once

#include "state/Codec.h"

#include <optional>
#include <string_view>
#include <tuple>

// Persisted records as tables of fields: one table writes the record and reads it.

namespace tintra {

/// What a record is without a field, or with one that is not understood.
enum class Absent {
    refused,  ///< no record
    standsIn, ///< the member's initial value stands in
};

/// A member of a record under its key.
template <class Record, class T>
struct Field {
    std::string_view key;
    T Record::*member;
    Absent absent = Absent::refused;
};
/// A member that may hold nothing: it is written only when it holds something.
template <class Record, class T>
struct Field<Record, std::optional<T>> {
    std::string_view key;
    std::optional<T> Record::*member;
    Absent absent = Absent::standsIn;
};
template <class Record, class T>
Field(std::string_view, T Record::*, Absent) -> Field<Record, T>;
template <class Record, class T>
Field(std::string_view, T Record::*) -> Field<Record, T>;

namespace records {

template <class Record, class T>
void write(Json& json, const Record& record, const Field<Record, T>& field) {
    json[std::string(field.key)] = Codec<T>::encode(record.*field.member);
}
template <class Record, class T>
void write(Json& json, const Record& record, const Field<Record, std::optional<T>>& field) {
    if (const auto& value = record.*field.member)
        json[std::string(field.key)] = Codec<T>::encode(*value);
}

/// Whether the record stands with what the document holds for the field.
template <class Record, class T>
bool read(const Json& json, Record& record, const Field<Record, T>& field) {
    const auto found = json.find(field.key);
    if (found != json.end())
        if (auto value = Codec<T>::decode(*found)) {
            record.*field.member = *std::move(value);
            return true;
        }
    return field.absent == Absent::standsIn;
}
template <class Record, class T>
bool read(const Json& json, Record& record, const Field<Record, std::optional<T>>& field) {
    const auto found = json.find(field.key);
    if (found != json.end()) record.*field.member = Codec<T>::decode(*found);
    return true;
}

} // namespace records

/// The members in the order of the table.
template <class Record, class... T>
Json encoded(const Record& record, const std::tuple<Field<Record, T>...>& fields) {
    Json json = Json::object();
    std::apply([&](const auto&... field) { (records::write(json, record, field), ...); }, fields);
    return json;
}

/// The record that a document holds; nothing when it is no object or a field is refused. Keys that
/// the table does not know are passed over.
template <class Record, class... T>
std::optional<Record> decoded(const Json& json, const std::tuple<Field<Record, T>...>& fields) {
    if (!json.is_object()) return std::nullopt;
    Record record{};
    const bool stands = std::apply(
        [&](const auto&... field) { return (records::read(json, record, field) && ...); }, fields);
    if (!stands) return std::nullopt;
    return record;
}

} // namespace tintra
