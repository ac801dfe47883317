#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "colour/ColorNames.h"

namespace tintra::cli {

namespace {

struct NameOptions {
    std::vector<std::string> colours;
};

void name(Session& session, const NameOptions& options) {
    Json list = Json::array();
    auto& names = ColorNames::shared();
    for (const auto& colour : colourArguments(session, options.colours)) {
        const auto found = names.name(colour);
        if (session.json())
            list.push_back({{"hex", hexText(colour)}, {"name", found}});
        else
            session.printLine(session.block(swatchBytes(colour)) + found);
    }
    if (session.json()) session.printJson(list);
}

} // namespace

Action declareName(Declaration& declaration) {
    const auto options = std::make_shared<NameOptions>();
    declaration.positional("COLOUR", options->colours, kColourHelp);
    return [options](Session& session) { name(session, *options); };
}

} // namespace tintra::cli
