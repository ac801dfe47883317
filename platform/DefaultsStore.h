#pragma once

#include "platform/File.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// The user's settings and saved state: a record (any bytes) a key. Main loop.
class DefaultsStore {
public:
    virtual ~DefaultsStore() = default;

    /// The record as last set, also when it is still on its way to the disk; nothing when there is
    /// none or it cannot be read.
    virtual std::optional<std::string> data(std::string_view key) = 0;

    /// Keeps a record under a key. Returns at once; the record reaches the disk soon after, whole
    /// or not at all, and of several records of one key set meanwhile only the last is written.
    virtual void set(std::string_view key, std::string record) = 0;

    virtual void remove(std::string_view key) = 0;

    /// Keeps a record that could not be understood under a new name, so that the next `set` does
    /// not replace it.
    virtual void setAside(std::string_view key) = 0;

    /// Returns when everything that was set has been written or has failed.
    virtual void flush() = 0;

    /// Is told, on the main loop, of each record that could not be written. The record stays what
    /// `data` answers and is tried again with the next `set` of its key and with `flush`.
    virtual void
    whenFailing(std::function<void(std::string_view key, const FileError& error)> told) = 0;

    /// Is told, on the main loop, when the last record that could not be written has been.
    virtual void whenRecovered(std::function<void()> told) = 0;
};

} // namespace tintra
