#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// The platform's way to find other applications and to run statements in them. Main loop.
class Scripting {
public:
    /// Why a statement failed, in the platform's words; empty when the platform gives none.
    struct Error {
        std::string message;
    };

    virtual ~Scripting() = default;

    /// Whether an application of that identifier is installed.
    virtual bool finds(std::string_view applicationIdentifier) const = 0;

    /// Runs the source and returns when it is done; nothing on success.
    virtual std::optional<Error> run(std::string_view source) = 0;
};

/// A platform without such a service: finds nothing, runs nothing.
class NoScripting final : public Scripting {
public:
    bool finds(std::string_view) const override { return false; }
    std::optional<Error> run(std::string_view) override { return Error{}; }
};

} // namespace tintra
