#include "cli/Run.h"

#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Version.h"
#include "colour/ColorProfiles.h"

#include <fmt/format.h>

#include <algorithm>

namespace tintra::cli {

namespace {

bool isRgbSpace(const std::string& name) {
    const auto& spaces = ColorProfiles::rgbSpaces();
    return std::any_of(spaces.begin(), spaces.end(),
                       [&](const auto& space) { return space.name == name; });
}

/// A name given on the command line is meant: what the models pass over silently is an error here.
void selectProfiles(const GlobalOptions& options) {
    auto& profiles = ColorProfiles::shared();
    const auto& rgb = options.rgbProfile;
    if (!rgb.empty() && !isRgbSpace(rgb))
        throw UsageError{fmt::format("no RGB profile “{}”; “tintra profiles” lists them", rgb)};
    if (!rgb.empty()) profiles.selectRGB(rgb);
    const auto& cmyk = options.cmykProfile;
    if (!cmyk.empty()) profiles.selectCMYK(cmyk);
    if (!cmyk.empty() && profiles.selectedCMYK() != cmyk)
        throw UsageError{fmt::format("no CMYK profile “{}”; “tintra profiles” lists them", cmyk)};
    profiles.setLabIlluminant(labIlluminant(options.illuminant).value_or(LabIlluminant::d50));
}

/// The parser with every command declared in it; what a command does is chosen while parsing.
class Parser {
public:
    Parser() : app_("A colour toolbox: palettes, names, code, contrast.", "tintra") {
        app_.formatter(std::make_shared<HelpFormatter>());
        app_.require_subcommand(1);
        app_.set_version_flag("--version", fmt::format("tintra {}", kVersion));
        Declaration globals(app_);
        declareGlobals(globals, options_);
        for (const auto& command : commands())
            add(command);
    }

    void parse(const std::vector<std::string>& arguments) {
        // The parser takes its arguments from the back.
        app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    }

    int explain(const CLI::ParseError& error, Console& console) const;
    const GlobalOptions& options() const { return options_; }
    const Action& action() const { return action_; }

private:
    void add(const Command& command) {
        auto* sub = app_.add_subcommand(std::string(command.name), std::string(command.summary));
        sub->footer(examplesText(command));
        sub->group("Commands");
        Declaration declaration(*sub);
        auto action = command.declare(declaration);
        declareGlobals(declaration, options_);
        sub->callback([this, action] { action_ = action; });
    }

    CLI::App app_;
    GlobalOptions options_;
    Action action_;
};

int Parser::explain(const CLI::ParseError& error, Console& console) const {
    if (error.get_exit_code() == 0) {
        std::ostringstream text;
        app_.exit(error, text, text);
        console.out(text.str());
        return done;
    }
    console.err(fmt::format("tintra: {}\nTry “tintra --help”.\n", error.what()));
    return wrongUsage;
}

int act(const Parser& parser, Console& console) {
    Session session(console, parser.options());
    try {
        selectProfiles(parser.options());
        parser.action()(session);
        session.flush();
        return session.status();
    } catch (const UsageError& error) {
        console.err(fmt::format("tintra: {}\n", error.what));
        return wrongUsage;
    }
}

} // namespace

int run(const std::vector<std::string>& arguments, Console& console) {
    try {
        if (arguments.empty()) {
            console.err("tintra: a command is needed\nTry “tintra --help”.\n");
            return wrongUsage;
        }
        Parser parser;
        try {
            parser.parse(arguments);
        } catch (const CLI::ParseError& error) {
            return parser.explain(error, console);
        }
        return act(parser, console);
    } catch (const OutputClosed&) {
        return done;
    } catch (const OutputFailed& error) {
        console.err(fmt::format("tintra: standard output: {}\n", error.why));
        return failed;
    }
}

} // namespace tintra::cli
