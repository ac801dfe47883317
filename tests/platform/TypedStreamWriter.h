#pragma once

#include "tests/support/ByteBuilder.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace tintra::test {

/// A colour of an old colour list: its space number and values, and its key.
struct StreamColour {
    unsigned space;
    std::vector<float> values;
    std::string key;
};

/// Writes an old colour list, with everything shared that has been written before.
class TypedStreamWriter {
public:
    explicit TypedStreamWriter(ByteOrder order) : out_(order) {
        out_.u8(4).u8(11).text(order == ByteOrder::littleEndian ? "streamtyped" : "typedstream");
        integer(1000);
    }

    Bytes list(const std::vector<StreamColour>& colours) {
        types("i");
        integer(1);
        types("@i");
        out_.u8(kNil);
        integer(static_cast<int>(colours.size()));
        for (const auto& colour : colours) {
            types("@@");
            begin("NSColor", 0);
            types("c");
            out_.u8(colour.space);
            types(std::string(colour.values.size(), 'f'));
            for (const float value : colour.values)
                out_.u8(kFloat).f32(value);
            out_.u8(kEnd);
            begin("NSString", 1);
            types("+");
            counted(colour.key);
            out_.u8(kEnd);
        }
        return out_.built();
    }

private:
    static constexpr unsigned kFloat = 0x83, kNew = 0x84, kNil = 0x85, kEnd = 0x86;
    static constexpr int kFirstReference = -110;

    void integer(int value) {
        if (value >= kFirstReference && value <= 127)
            out_.u8(static_cast<unsigned>(value));
        else
            out_.u8(0x81).u16(static_cast<unsigned>(value));
    }
    void counted(std::string_view text) {
        integer(static_cast<int>(text.size()));
        out_.text(text);
    }
    /// A reference when the name is in the table, whose place is then known.
    bool refer(const std::vector<std::string>& table, std::string_view name) {
        const auto at = std::ranges::find(table, name);
        if (at == table.end()) return false;
        integer(static_cast<int>(at - table.begin()) + kFirstReference);
        return true;
    }
    void types(std::string_view text) {
        if (refer(strings_, text)) return;
        out_.u8(kNew);
        counted(text);
        strings_.emplace_back(text);
    }
    void begin(std::string_view className, int version) {
        out_.u8(kNew);
        slots_.emplace_back(); // the object itself
        if (refer(slots_, className)) return;
        out_.u8(kNew);
        types(className);
        integer(version);
        slots_.emplace_back(className);
        if (refer(slots_, "NSObject")) return;
        out_.u8(kNew);
        types("NSObject");
        integer(0);
        slots_.emplace_back("NSObject");
        out_.u8(kNil);
    }

    ByteBuilder out_;
    std::vector<std::string> strings_, slots_;
};

} // namespace tintra::test
