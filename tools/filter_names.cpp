// filter_names LIST REMOVED OUT
//
// Writes LIST (lines "#rrggbb<TAB>name") to OUT without the names that REMOVED holds, one a line;
// lines of REMOVED that begin with "#" are remarks. A name of REMOVED that LIST lacks is an error,
// so that the reviewed names keep step with a newer list.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <string>

namespace {

std::set<std::string> namesIn(std::istream& in) {
    std::set<std::string> names;
    for (std::string line; std::getline(in, line);)
        if (!line.empty() && line.front() != '#') names.insert(line);
    return names;
}

/// Copies the lines that stay and strikes each name that goes off `removed`.
void filter(std::istream& list, std::set<std::string>& removed, std::ostream& out) {
    for (std::string line; std::getline(list, line);) {
        const auto name = line.substr(line.find('\t') + 1);
        if (removed.erase(name) == 0) out << line << '\n';
    }
}

int fail(const std::string& why) {
    std::cerr << "filter_names: " << why << '\n';
    return 1;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4) return fail("LIST REMOVED OUT are needed");
    std::ifstream list(arguments[1]);
    std::ifstream reviewed(arguments[2]);
    if (!list || !reviewed) return fail("cannot read the lists");

    auto removed = namesIn(reviewed);
    std::filesystem::create_directories(std::filesystem::path(arguments[3]).parent_path());
    std::ofstream out(arguments[3]);
    filter(list, removed, out);
    if (!out.flush()) return fail(std::string("cannot write ") + arguments[3]);
    if (!removed.empty()) return fail("not in the list: " + *removed.begin());
    return 0;
}
