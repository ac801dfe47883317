#include "cli/Commands.h"
#include "colour/ColorFormat.h"
#include "palettes/PaletteExport.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

Json codeFormats() {
    Json list = Json::array();
    for (const auto format : ColorFormat::all()) {
        const auto& family = format.family();
        list.push_back({{"id", format.rawValue()},
                        {"title", format.title()},
                        {"platform", rawValue(family.platform)},
                        {"family", family.title}});
    }
    return list;
}

Json exportFormats() {
    Json list = Json::array();
    for (const auto format : allExportFormats())
        list.push_back({{"id", rawValue(format)},
                        {"title", title(format)},
                        {"extension", fileExtension(format)}});
    return list;
}

void printFormats(Session& session) {
    session.printLine("Code (tintra code --format ID)");
    for (const auto& family : ColorFormat::families()) {
        session.printLine(fmt::format("  {}", family.title));
        for (const auto format : family.formats)
            session.printLine(fmt::format("    {:<24}{}", format.rawValue(), format.title()));
    }
    session.printLine("Palette files (tintra convert --to FORMAT)");
    for (const auto format : allExportFormats())
        session.printLine(fmt::format("  {:<12}.{:<8}{}", rawValue(format), fileExtension(format),
                                      title(format)));
}

} // namespace

Action declareFormats(Declaration&) {
    return [](Session& session) {
        if (session.json())
            session.printJson({{"code", codeFormats()}, {"export", exportFormats()}});
        else
            printFormats(session);
    };
}

} // namespace tintra::cli
