// write_cli_docs FOLDER
//
// Writes the man page and the completions of the command into a folder; runs while building.

#include "cli/docs/Pages.h"
#include "platform/File.h"

#include <filesystem>
#include <iostream>

int main(int count, char** arguments) {
    using namespace tintra;
    if (count != 2) {
        std::cerr << "write_cli_docs: FOLDER is needed\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    std::filesystem::create_directories(folder);
    const auto pages = cli::pages();
    const std::pair<const char*, std::string> files[] = {
        {"tintra.1", cli::manPage(pages)},
        {"tintra.bash", cli::bashCompletion(pages)},
        {"_tintra", cli::zshCompletion(pages)},
        {"tintra.fish", cli::fishCompletion(pages)},
    };
    for (const auto& [name, text] : files) {
        if (const auto error = writeFile(folder / name, asBytes(text), Existing::replace)) {
            std::cerr << "write_cli_docs: " << (folder / name).string() << ": " << error->why
                      << '\n';
            return 1;
        }
    }
    return 0;
}
