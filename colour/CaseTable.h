#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// A closed list as one table: an array of rows in the order of the enum's cases, each row with its
// case as `value` and the persisted text as `raw`.

namespace tintra {

/// The row of a case.
template <class Row, std::size_t size, class Case>
constexpr const Row& rowOf(const std::array<Row, size>& rows, Case value) {
    return rows[static_cast<std::size_t>(value)];
}

/// The case of a persisted text; nothing for an unknown one.
template <class Row, std::size_t size>
constexpr auto caseOf(const std::array<Row, size>& rows, std::string_view raw) {
    std::optional<decltype(Row::value)> found;
    for (const auto& row : rows)
        if (row.raw == raw) found = row.value;
    return found;
}

/// Every case, in the order of the rows.
template <class Row, std::size_t size>
constexpr auto casesOf(const std::array<Row, size>& rows) {
    std::array<decltype(Row::value), size> cases{};
    for (std::size_t i = 0; i < size; ++i)
        cases[i] = rows[i].value;
    return cases;
}

/// Whether the rows stand in the order of the cases, as `rowOf` needs them.
template <class Row, std::size_t size>
constexpr bool inCaseOrder(const std::array<Row, size>& rows) {
    for (std::size_t i = 0; i < size; ++i)
        if (static_cast<std::size_t>(rows[i].value) != i) return false;
    return true;
}

} // namespace tintra
