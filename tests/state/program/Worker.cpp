#include "platform/Chance.h"
#include "platform/Clock.h"
#include "platform/FileDefaults.h"
#include "platform/desktop/services/QtMainLoop.h"
#include "state/Models.h"
#include "tests/support/FakeDesktop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>
#include <string>

// The models over records in real files, in a process that can be killed. It takes commands from
// standard input, a line each, and prints what happened:
//   edit N        the Nth change, in several models at once; the palettes can tell which it was
//   stream SEED   changes without end, each said with its time: "edit N MILLISECONDS"
//   wait SECONDS  the loop runs
//   seen          "primary N extra N": the last change that each palette has seen
//   keep          everything is written
//   sh COMMAND    what a shell does

namespace tintra {

namespace {

/// Prints what a window would show.
class PrintedToasts final : public Toasts {
public:
    void show(std::string text, double, std::optional<ToastAction>, ToastPlace) override {
        std::cout << "notice " << text << std::endl;
    }
};

class PrintedLog final : public Log {
public:
    void line(std::string_view text) override { std::cout << "log " << text << std::endl; }
};

std::int64_t milliseconds(const Clock& clock) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(clock.date().time_since_epoch())
        .count();
}

class Worker {
public:
    explicit Worker(const std::filesystem::path& folder)
        : defaults_({folder / "settings", folder / "records"}, loop_, clock_),
          trash_(folder / "trash"),
          models_({clock_, chance_, loop_, background_, defaults_, clipboard_, trash_, browser_,
                   watch_, scripting_, toasts_, dialogues_, log_},
                  {loop_, background_, watch_, trash_, folder / "colors", {}, {}}) {
        models_.start([](const Uuid&) {});
        if (models_.workspaces().order().value().size() < 2) models_.workspaces().openExtra();
    }

    void perform(const std::string& line) {
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "edit") edit(number(words));
        if (command == "stream") stream(number(words));
        if (command == "wait") wait(number(words) * 1000);
        if (command == "seen") seen();
        if (command == "keep") models_.keep();
        if (command == "sh") shell(words);
    }

private:
    static double number(std::istringstream& words) {
        double value = 0;
        words >> value;
        return value;
    }

    static void shell(std::istringstream& words) {
        std::string command;
        std::getline(words, command);
        if (std::system(command.c_str()) != 0) std::cout << "failed:" << command << std::endl;
    }

    AppState& extra() {
        return *models_.workspaces().state(models_.workspaces().order().value().back());
    }

    void edit(double change) {
        for (auto* palette : {models_.workspaces().primary(), &extra()}) {
            if (palette->swatches().empty()) fill(*palette);
            palette->renameSwatch(0, std::to_string(static_cast<int>(change)));
        }
        const WashColor color{std::fmod(change * 0.37, 1), std::fmod(change * 0.61, 1), 0.5, 1};
        models_.preferences().remember(color);
        models_.bench().addStagedToBench(models_.bench().stagedColumn(color, {}));
        if (models_.bench().benchColumns().size() > 20)
            models_.bench().clearBench(Bench::Asking::no);
        if (models_.contrast().isFull()) models_.contrast().clear();
        models_.contrast().send({}, color);
    }

    static void fill(AppState& palette) {
        std::vector<WashColor> colors;
        for (int i = 0; i < 64; ++i)
            colors.push_back({i / 64.0, 1 - i / 64.0, 0.25, 1});
        palette.replacePalette(colors, {});
    }

    static int change(const AppState& palette) {
        if (palette.swatches().empty()) return 0;
        return std::atoi(palette.swatches()[0].name.value_or("0").c_str());
    }

    void seen() {
        std::cout << "primary " << change(*models_.workspaces().primary()) << " extra "
                  << change(extra()) << std::endl;
    }

    void stream(double seed) {
        std::mt19937 random(static_cast<unsigned>(seed));
        std::uniform_int_distribution<int> gap(5, 200);
        for (int next = change(*models_.workspaces().primary()) + 1;; ++next) {
            edit(next);
            std::cout << "edit " << next << ' ' << milliseconds(clock_) << std::endl;
            wait(gap(random));
        }
    }

    void wait(double milliseconds) {
        QEventLoop turning;
        const auto end = loop_.after(milliseconds / 1000, [&turning] { turning.quit(); });
        turning.exec();
    }

    QtMainLoop loop_;
    SystemClock clock_;
    SystemChance chance_;
    ManualBackground background_;
    FileDefaults defaults_;
    MemoryClipboard clipboard_;
    FolderTrash trash_;
    RecordingFileBrowser browser_;
    ManualFolderWatch watch_;
    RecordingScripting scripting_;
    PrintedToasts toasts_;
    ScriptedDialogues dialogues_;
    PrintedLog log_;
    Models models_;
};

} // namespace

} // namespace tintra

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: tintra_state_worker FOLDER\n";
        return 2;
    }
    const QCoreApplication application(argc, argv);
    tintra::Worker worker(argv[1]);
    for (std::string line; std::getline(std::cin, line);)
        worker.perform(line);
}
