#include "platform/colourlist/TypedStream.h"

#include <charconv>
#include <utility>

namespace tintra::colourlist {

namespace {

// Marks in the place of an integer; what lies between the last one and the lowest one-byte integer
// is not used.
enum Mark : std::uint8_t {
    k16Bits = 0x81,
    k32Bits = 0x82,
    kFloatingPoint = 0x83,
    kNew = 0x84,
    kNil = 0x85,
    kEndOfObject = 0x86,
};
constexpr std::int64_t kFirstReference = -110;

constexpr int kDeepest = 32;
constexpr std::size_t kLongestTypes = 64;
constexpr std::size_t kMostValues = 8; // a colour has six

std::optional<ByteOrder> orderOf(std::string_view signature) {
    if (signature == "streamtyped") return ByteOrder::littleEndian;
    if (signature == "typedstream") return ByteOrder::bigEndian;
    return std::nullopt;
}

std::optional<StreamValue> number(std::optional<double> value) {
    return value ? std::optional(StreamValue(*value)) : std::nullopt;
}

void keep(std::vector<StreamValue>& values, const StreamValue& value) {
    if (values.size() < kMostValues) values.push_back(value);
}

} // namespace

std::optional<TypedStream> TypedStream::open(ByteView data) {
    constexpr std::uint8_t kVersion = 4;
    constexpr std::size_t kSignatureLength = 11;
    ByteReader reader(data);
    if (reader.u8() != kVersion || reader.u8() != kSignatureLength) return std::nullopt;
    const auto signature = reader.take(kSignatureLength);
    const auto order = signature ? orderOf(asText(*signature)) : std::nullopt;
    if (!order) return std::nullopt;
    TypedStream stream(ByteReader(data.subspan(reader.position()), *order));
    if (!stream.integer()) return std::nullopt; // the version of the system that wrote it
    return stream;
}

const StreamObject* TypedStream::object(const StreamValue& value) const {
    const auto* const reference = std::get_if<Reference>(&value);
    return reference != nullptr && reference->slot < slots_.size() ? &slots_[reference->slot]
                                                                   : nullptr;
}

std::optional<std::int64_t> TypedStream::integer() {
    const auto first = head();
    return first ? integerAfter(*first) : std::nullopt;
}

std::optional<std::int64_t> TypedStream::integerAfter(std::uint8_t head) {
    if (head == k16Bits) {
        const auto bits = reader_.u16();
        return bits ? std::optional<std::int64_t>(static_cast<std::int16_t>(*bits)) : std::nullopt;
    }
    if (head == k32Bits) {
        const auto bits = reader_.u32();
        return bits ? std::optional<std::int64_t>(static_cast<std::int32_t>(*bits)) : std::nullopt;
    }
    const auto value = static_cast<std::int8_t>(head);
    return value >= kFirstReference ? std::optional<std::int64_t>(value) : std::nullopt;
}

std::optional<double> TypedStream::real(char type) {
    const auto first = head();
    if (!first) return std::nullopt;
    if (*first != kFloatingPoint) {
        const auto whole = integerAfter(*first);
        return whole ? std::optional(static_cast<double>(*whole)) : std::nullopt;
    }
    if (type == 'd') return reader_.f64();
    const auto single = reader_.f32();
    return single ? std::optional(static_cast<double>(*single)) : std::nullopt;
}

std::optional<std::string_view> TypedStream::unsharedString() {
    const auto first = head();
    if (!first) return std::nullopt;
    if (*first == kNil) return std::string_view();
    const auto length = integerAfter(*first);
    if (!length || *length < 0) return std::nullopt;
    const auto bytes = reader_.take(static_cast<std::size_t>(*length));
    return bytes ? std::optional(asText(*bytes)) : std::nullopt;
}

std::optional<std::string_view> TypedStream::sharedString() {
    const auto first = head();
    if (!first) return std::nullopt;
    if (*first == kNil) return std::string_view();
    if (*first == kNew) {
        const auto text = unsharedString();
        if (text) strings_.push_back(*text);
        return text;
    }
    const auto known = referenceAfter(*first);
    return known && *known < strings_.size() ? std::optional(strings_[*known]) : std::nullopt;
}

std::optional<std::size_t> TypedStream::referenceAfter(std::uint8_t head) {
    const auto value = integerAfter(head);
    if (!value || *value < kFirstReference) return std::nullopt;
    return static_cast<std::size_t>(*value - kFirstReference);
}

/// A class and its superclasses; the name of the first.
std::optional<std::string_view> TypedStream::classChain() {
    std::optional<std::string_view> name;
    while (true) {
        const auto first = head();
        if (!first) return std::nullopt;
        if (*first == kNil) return name;
        if (*first != kNew) {
            const auto known = referenceAfter(*first);
            if (!known || *known >= slots_.size()) return std::nullopt;
            return name ? name : slots_[*known].className;
        }
        const auto own = sharedString();
        if (!own || !integer()) return std::nullopt; // the integer is the version of the class
        slots_.push_back({*own, {}});
        if (!name) name = own;
    }
}

std::optional<StreamValue> TypedStream::objectOrReference() {
    const auto first = head();
    if (!first) return std::nullopt;
    if (*first == kNil) return StreamValue();
    if (*first == kNew) return newObject();
    const auto known = referenceAfter(*first);
    if (!known || *known >= slots_.size()) return std::nullopt;
    return Reference{*known};
}

std::optional<StreamValue> TypedStream::newObject() {
    if (depth_ >= kDeepest) return std::nullopt;
    ++depth_;
    const auto slot = slots_.size();
    slots_.emplace_back();
    const auto name = classChain();
    if (!name) return std::nullopt;
    StreamObject made{*name, {}};
    while (true) {
        const auto first = head();
        if (!first) return std::nullopt;
        if (*first == kEndOfObject) break;
        reader_.seek(reader_.position() - 1);
        const auto next = group();
        if (!next) return std::nullopt;
        for (const auto& each : next->values)
            keep(made.values, each);
    }
    slots_[slot] = std::move(made);
    --depth_;
    return Reference{slot};
}

std::optional<StreamValue> TypedStream::cString() {
    const auto first = head();
    if (!first) return std::nullopt;
    if (*first == kNil) return StreamValue();
    if (*first != kNew) {
        const auto known = referenceAfter(*first);
        if (!known || *known >= slots_.size()) return std::nullopt;
        return StreamValue(slots_[*known].className);
    }
    const auto text = sharedString();
    if (!text) return std::nullopt;
    slots_.push_back({*text, {}});
    return StreamValue(*text);
}

std::optional<StreamValue> TypedStream::value(char type) {
    switch (type) {
    case '@':
        return objectOrReference();
    case '*':
        return cString();
    case '#': {
        const auto name = classChain();
        return name ? std::optional(StreamValue(*name)) : std::nullopt;
    }
    case '+': {
        const auto text = unsharedString();
        return text ? std::optional(StreamValue(*text)) : std::nullopt;
    }
    case 'f':
    case 'd':
        return number(real(type));
    case 'c':
    case 'C': {
        const auto byte = reader_.u8();
        return number(byte ? std::optional<double>(*byte) : std::nullopt);
    }
    default: {
        if (std::string_view("sSiIlLqQ").find(type) == std::string_view::npos) return std::nullopt;
        const auto whole = integer();
        return number(whole ? std::optional(static_cast<double>(*whole)) : std::nullopt);
    }
    }
}

/// "[12c]": bytes as they are, such as a picture's. `types` begins after the bracket.
std::optional<StreamValue> TypedStream::array(std::string_view& types) {
    std::size_t count = 0;
    const auto end = std::from_chars(types.data(), types.data() + types.size(), count);
    if (end.ec != std::errc()) return std::nullopt;
    types.remove_prefix(static_cast<std::size_t>(end.ptr - types.data()));
    if (!types.starts_with("c]") && !types.starts_with("C]")) return std::nullopt;
    types.remove_prefix(2);
    const auto bytes = reader_.take(count);
    return bytes ? std::optional(StreamValue(asText(*bytes))) : std::nullopt;
}

std::optional<TypedStream::Group> TypedStream::group() {
    const auto types = sharedString();
    if (!types || types->size() > kLongestTypes) return std::nullopt;
    Group read{*types, {}};
    for (auto left = *types; !left.empty();) {
        const char type = left.front();
        left.remove_prefix(1);
        const auto next = type == '[' ? array(left) : value(type);
        if (!next) return std::nullopt;
        keep(read.values, *next);
    }
    return read;
}

} // namespace tintra::colourlist
