#pragma once

#include "cli/Session.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <string>
#include <vector>

namespace tintra::cli {

/// What a person may give for a parameter, for completion.
enum class Takes { nothing, text, file, folder };

/// One option or positional argument, as the help, the man page and the completions tell it.
struct Parameter {
    std::string names;       ///< "-o,--output", "--json", or the name of a positional
    std::string placeholder; ///< "FILE"; empty for a flag
    std::string help;
    Takes takes = Takes::nothing;
    std::vector<std::string> choices; ///< the texts that are taken, where the list is closed
    bool positional = false;
    bool required = false;
    bool repeated = false;
};

/// What a command does once its arguments are read.
using Action = std::function<void(Session&)>;

/// Declares the parameters of a command, once, for the parser and for everything that documents
/// it. The targets must outlive the parsing.
class Declaration {
public:
    explicit Declaration(CLI::App& app) : app_(app) {}

    void flag(const std::string& names, bool& target, const std::string& help);

    template <typename Target>
    CLI::Option* option(const std::string& names, Target& target, const std::string& placeholder,
                        const std::string& help, Takes takes = Takes::text) {
        record({names, placeholder, help, takes, {}, false, false, isList<Target>()});
        return app_.add_option(names, target, help)
            ->type_name(placeholder)
            ->allow_extra_args(false);
    }

    /// An option that takes a whole number within bounds, which its help names.
    void number(const std::string& names, int& target, int least, int most,
                const std::string& placeholder, const std::string& help) {
        option(names, target, placeholder, help)->check(CLI::Range(least, most).description(""));
    }

    /// An option that takes one of a closed list of texts.
    template <typename Target>
    CLI::Option* choice(const std::string& names, Target& target,
                        const std::vector<std::string>& choices, const std::string& placeholder,
                        const std::string& help) {
        auto* made = option(names, target, placeholder, withChoices(help, choices));
        parameters_.back().choices = choices;
        return made->check(oneOf(choices));
    }

    /// A positional argument; a list takes every one that is left.
    template <typename Target>
    CLI::Option* positional(const std::string& name, Target& target, const std::string& help,
                            Takes takes = Takes::text) {
        record({name, name, help, takes, {}, true, true, isList<Target>()});
        return app_.add_option(name, target, help)->type_name("")->required();
    }

    template <typename Target>
    CLI::Option* positionalChoice(const std::string& name, Target& target,
                                  const std::vector<std::string>& choices,
                                  const std::string& help) {
        auto* made = positional(name, target, withChoices(help, choices));
        parameters_.back().choices = choices;
        return made->check(oneOf(choices));
    }

    /// The last declared parameter may be left out.
    void optional(CLI::Option* declared) {
        declared->required(false);
        parameters_.back().required = false;
    }

    const std::vector<Parameter>& parameters() const { return parameters_; }
    CLI::App& app() { return app_; }

private:
    template <typename Target>
    static constexpr bool isList() {
        return requires(Target target) {
            target.push_back(std::string());
        }
        &&!std::is_same_v<Target, std::string>;
    }
    /// The help with the choices behind it, unless they are too many to read.
    static std::string withChoices(const std::string& help,
                                   const std::vector<std::string>& choices);
    static CLI::Validator oneOf(const std::vector<std::string>& choices);
    void record(Parameter parameter) { parameters_.push_back(std::move(parameter)); }

    CLI::App& app_;
    std::vector<Parameter> parameters_;
};

} // namespace tintra::cli
