#pragma once

#include "platform/ByteReader.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

// The old archive format: a stream of values that describe themselves by type strings, with two
// tables of what may be referred to again. Internal to the colour-list service.

namespace tintra::colourlist {

/// A place in the table of objects, classes and C strings.
struct Reference {
    std::size_t slot;
};

/// A value of a group: nil, a number, bytes of the file, or an object.
using StreamValue = std::variant<std::monostate, double, std::string_view, Reference>;

/// An object: its class and its first values.
struct StreamObject {
    std::string_view className;
    std::vector<StreamValue> values;
};

/// Reads groups of values one after the other. Every length is bounded by the bytes left, nesting
/// by a constant; once a read answers nothing the stream is spent.
class TypedStream {
public:
    /// Nothing when the bytes do not begin as a typed stream of either byte order. The stream
    /// refers to the bytes.
    static std::optional<TypedStream> open(ByteView data);

    struct Group {
        std::string_view types;
        std::vector<StreamValue> values;
    };
    std::optional<Group> group();

    /// The object of a value; null when the value is none.
    const StreamObject* object(const StreamValue& value) const;

private:
    explicit TypedStream(ByteReader reader) : reader_(reader) {}

    std::optional<std::uint8_t> head() { return reader_.u8(); }
    std::optional<std::int64_t> integer();
    std::optional<std::int64_t> integerAfter(std::uint8_t head);
    std::optional<double> real(char type);
    std::optional<std::string_view> unsharedString();
    std::optional<std::string_view> sharedString();
    std::optional<std::size_t> referenceAfter(std::uint8_t head);
    std::optional<std::string_view> classChain();
    std::optional<StreamValue> objectOrReference();
    std::optional<StreamValue> newObject();
    std::optional<StreamValue> cString();
    std::optional<StreamValue> value(char type);
    std::optional<StreamValue> array(std::string_view& types);

    ByteReader reader_;
    std::vector<std::string_view> strings_;
    std::vector<StreamObject> slots_;
    int depth_ = 0;
};

} // namespace tintra::colourlist
