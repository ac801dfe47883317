#include "platform/ByteReader.h"
#include "platform/colourlist/PropertyListChecks.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tintra::colourlist {

namespace {

/// What stands at the end of the file.
struct Trailer {
    std::size_t offsetSize, referenceSize;
    std::uint64_t objects, top, offsetTable;
};

std::optional<Trailer> trailerOf(ByteView data) {
    constexpr std::size_t kLength = 32, kUnused = 6;
    if (data.size() < kLength) return std::nullopt;
    ByteReader reader(data.last(kLength));
    reader.seek(kUnused);
    const Trailer trailer{*reader.u8(), *reader.u8(), *reader.u64(), *reader.u64(), *reader.u64()};
    const bool sizes = trailer.offsetSize >= 1 && trailer.offsetSize <= 8 &&
                       trailer.referenceSize >= 1 && trailer.referenceSize <= 8;
    const bool numbers = trailer.objects <= data.size() && trailer.top < trailer.objects &&
                         trailer.offsetTable < data.size();
    return sizes && numbers ? std::optional(trailer) : std::nullopt;
}

/// The kinds of objects by the upper half of their first byte.
enum Kind : unsigned {
    kSimple = 0x0,
    kInteger = 0x1,
    kReal = 0x2,
    kDate = 0x3,
    kData = 0x4,
    kAscii = 0x5,
    kUtf16 = 0x6,
    kUid = 0x8,
    kArray = 0xA,
    kDictionary = 0xD,
};

/// A container whose references are being followed.
struct Open {
    std::size_t nextReference;
    std::uint64_t left;
};

/// Follows every reference as the parser would, and stops when it has gone too far.
class Unfolding {
public:
    Unfolding(ByteView data, const Trailer& trailer)
        : reader_(data), trailer_(trailer), nodesLeft_(data.size() / 2 + 1024),
          payloadLeft_(data.size() * 8 + (1U << 16U)) {}

    bool staysModest() {
        if (!enter(trailer_.top)) return false;
        while (!open_.empty()) {
            auto& container = open_.back();
            if (container.left == 0) {
                open_.pop_back();
                continue;
            }
            reader_.seek(container.nextReference);
            const auto reference = integer(trailer_.referenceSize);
            container.nextReference = reader_.position();
            --container.left;
            if (!reference || !enter(*reference)) return false;
        }
        return true;
    }

private:
    std::optional<std::uint64_t> integer(std::size_t size) {
        const auto bytes = reader_.take(size);
        if (!bytes) return std::nullopt;
        std::uint64_t value = 0;
        for (const auto byte : *bytes)
            value = value << 8U | std::to_integer<std::uint64_t>(byte);
        return value;
    }

    /// The length in an object's first byte, or in the integer after it.
    std::optional<std::uint64_t> length(unsigned half) {
        constexpr unsigned kElsewhere = 0xF;
        if (half != kElsewhere) return half;
        const auto head = reader_.u8();
        if (!head || *head >> 4U != kInteger || (*head & 0xFU) > 3) return std::nullopt;
        return integer(std::size_t{1} << (*head & 0xFU));
    }

    bool enter(std::uint64_t object) {
        if (object >= trailer_.objects || nodesLeft_-- == 0) return false;
        reader_.seek(trailer_.offsetTable + object * trailer_.offsetSize);
        const auto offset = integer(trailer_.offsetSize);
        if (!offset) return false;
        reader_.seek(*offset);
        const auto head = reader_.u8();
        return head && enter(*head >> 4U, *head & 0xFU);
    }

    bool enter(unsigned kind, unsigned half) {
        switch (kind) {
        case kSimple:
        case kInteger:
        case kReal:
        case kDate:
        case kUid:
            return true;
        case kData:
        case kAscii:
            return pay(length(half), 1);
        case kUtf16:
            return pay(length(half), 2);
        case kArray:
            return open(length(half), 1);
        case kDictionary:
            return open(length(half), 2);
        default:
            return false;
        }
    }

    bool pay(std::optional<std::uint64_t> count, std::uint64_t each) {
        if (!count || *count > reader_.remaining() || *count * each > payloadLeft_) return false;
        payloadLeft_ -= *count * each;
        return true;
    }

    bool open(std::optional<std::uint64_t> count, std::uint64_t each) {
        if (!count || *count > reader_.remaining() || open_.size() >= kDeepestPlist) return false;
        open_.push_back({reader_.position(), *count * each});
        return true;
    }

    ByteReader reader_;
    Trailer trailer_;
    std::vector<Open> open_;
    std::size_t nodesLeft_;
    std::size_t payloadLeft_;
};

} // namespace

bool binaryUnfoldsModestly(ByteView data) {
    const auto trailer = trailerOf(data);
    return trailer && Unfolding(data, *trailer).staysModest();
}

} // namespace tintra::colourlist
