#pragma once

#include "tests/support/ByteBuilder.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tintra::test {

/// A colour entry of an ASE file; the length is that of the name with its terminator.
inline Bytes aseEntry(std::u16string_view name, std::string_view model,
                      const std::vector<float>& values) {
    ByteBuilder body;
    body.u16(static_cast<unsigned>(name.size() + 1)).utf16(name).u16(0).text(model);
    for (const float value : values)
        body.f32(value);
    body.u16(0);
    return ByteBuilder().u16(1).u32(body.size()).bytes(body.built()).built();
}

inline Bytes aseFile(const std::vector<Bytes>& blocks, std::uint64_t count) {
    ByteBuilder file;
    file.text("ASEF").u16(1).u16(0).u32(count);
    for (const auto& block : blocks)
        file.bytes(block);
    return file.built();
}

inline Bytes aseFile(const std::vector<Bytes>& blocks) {
    return aseFile(blocks, blocks.size());
}

/// A record of an ACO file without a name.
inline Bytes acoRecord(unsigned space, const std::vector<unsigned>& values) {
    ByteBuilder record;
    record.u16(space);
    for (const unsigned value : values)
        record.u16(value);
    return record.built();
}

inline Bytes acoSection(unsigned version, unsigned count, const std::vector<Bytes>& records) {
    ByteBuilder section;
    section.u16(version).u16(count);
    for (const auto& record : records)
        section.bytes(record);
    return section.built();
}

inline Bytes acoNamed(const Bytes& record, std::u16string_view units) {
    return ByteBuilder().bytes(record).u32(units.size()).utf16(units).built();
}

} // namespace tintra::test
