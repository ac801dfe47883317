#pragma once

#include "platform/Chance.h"
#include "platform/Clipboard.h"
#include "platform/DefaultsStore.h"
#include "platform/Dialogues.h"
#include "platform/FileBrowser.h"
#include "platform/FolderWatch.h"
#include "platform/Log.h"
#include "platform/Scripting.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "platform/Trash.h"
#include "tests/support/ManualLoop.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tintra {

/// The same values in every run (splitmix64 of a counter).
class FixedChance final : public Chance {
public:
    std::uint64_t bits() override {
        std::uint64_t z = (state_ += 0x9e3779b97f4a7c15U);
        z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
        return z ^ (z >> 31U);
    }

private:
    std::uint64_t state_ = 42;
};

/// Records in memory; survives the models that use it, as the disk does.
class MemoryDefaults final : public DefaultsStore {
public:
    std::optional<std::string> data(std::string_view key) override {
        const auto found = records.find(std::string(key));
        return found == records.end() ? std::nullopt : std::optional(found->second);
    }
    void set(std::string_view key, std::string record) override {
        records[std::string(key)] = std::move(record);
        ++writes[std::string(key)];
    }
    void remove(std::string_view key) override { records.erase(std::string(key)); }
    void setAside(std::string_view key) override {
        asideKeys.emplace_back(key);
        records.erase(std::string(key));
    }
    void flush() override {}
    void whenFailing(std::function<void(std::string_view, const FileError&)> told) override {
        failing = std::move(told);
    }
    void whenRecovered(std::function<void()> told) override { recovered = std::move(told); }

    std::map<std::string, std::string> records;
    std::map<std::string, int> writes;
    std::vector<std::string> asideKeys;
    std::function<void(std::string_view, const FileError&)> failing;
    std::function<void()> recovered;
};

class MemoryClipboard final : public Clipboard {
public:
    void set(const Content& content) override { held = content; }
    Content content() const override { return held; }
    Content held;
};

/// Moves files into a folder of the test's.
class FolderTrash final : public Trash {
public:
    explicit FolderTrash(std::filesystem::path folder) : folder_(std::move(folder)) {}
    std::variant<TrashedFile, FileError> trash(const std::filesystem::path& file) override {
        std::error_code error;
        std::filesystem::create_directories(folder_, error);
        const auto to = folder_ / (std::to_string(++count_) + file.filename().string());
        std::filesystem::rename(file, to, error);
        if (error) return FileError{error.message()};
        return TrashedFile{file, to};
    }
    std::optional<FileError> putBack(const TrashedFile& file) override {
        if (std::filesystem::exists(file.original)) return FileError{"File exists"};
        std::error_code error;
        std::filesystem::rename(file.inTrash, file.original, error);
        return error ? std::optional(FileError{error.message()}) : std::nullopt;
    }

private:
    std::filesystem::path folder_;
    int count_ = 0;
};

class RecordingFileBrowser final : public FileBrowser {
public:
    void reveal(const std::filesystem::path& file) override { revealed.push_back(file); }
    std::vector<std::filesystem::path> revealed;
};

class ManualFolderWatch final : public FolderWatch {
public:
    void watch(std::vector<std::filesystem::path> folders) override {
        watched = std::move(folders);
    }
    void whenChanged(std::function<void(const std::filesystem::path&)> told) override {
        change = std::move(told);
    }
    std::vector<std::filesystem::path> watched;
    std::function<void(const std::filesystem::path&)> change;
};

/// Scripting whose applications and answers a test sets.
class RecordingScripting final : public Scripting {
public:
    bool finds(std::string_view identifier) const override {
        return installed.contains(identifier);
    }
    std::optional<Error> run(std::string_view source) override {
        sources.emplace_back(source);
        return answer;
    }
    std::set<std::string, std::less<>> installed;
    std::vector<std::string> sources;
    std::optional<Error> answer;
};

class RecordingToasts final : public Toasts {
public:
    struct Shown {
        std::string text;
        double seconds;
        std::optional<ToastAction> action;
        ToastPlace window;
    };
    void show(std::string text, double seconds, std::optional<ToastAction> action,
              ToastPlace window) override {
        shown.push_back({std::move(text), seconds, std::move(action), window});
    }
    /// The texts since the last call.
    std::vector<std::string> taken() {
        std::vector<std::string> texts;
        for (auto& one : std::exchange(shown, {}))
            texts.push_back(std::move(one.text));
        return texts;
    }
    std::vector<Shown> shown;
};

/// Dialogues answered as a test has laid out; one that is asked without an answer laid out is
/// cancelled.
class ScriptedDialogues final : public Dialogues {
public:
    void ask(Question question, std::function<void(std::size_t)> answered) override {
        std::size_t button = question.buttons.size() - 1;
        const auto wanted = take(buttons);
        for (std::size_t i = 0; wanted && i < question.buttons.size(); ++i)
            if (question.buttons[i] == *wanted) button = i;
        questions.push_back(std::move(question));
        answered(button);
    }
    void askName(NameQuestion question,
                 std::function<void(std::optional<NameAnswer>)> answered) override {
        const auto name = take(names);
        auto answer = name ? std::optional(NameAnswer{*name}) : std::nullopt;
        if (name) refusal = question.refusal ? question.refusal(*name) : std::nullopt;
        if (refusal) answer.reset();
        clash = answer && question.clash ? question.clash(*name) : std::nullopt;
        if (clash) {
            const auto wanted = take(buttons);
            const auto at = std::ranges::find(clash->buttons, wanted.value_or(""));
            answer->button = static_cast<std::size_t>(at - clash->buttons.begin());
            if (at == clash->buttons.end()) answer.reset();
        }
        nameQuestions.push_back(std::move(question));
        answered(std::move(answer));
    }
    void askWhereToSave(SaveQuestion question,
                        std::function<void(std::optional<SaveAnswer>)> answered) override {
        saveQuestions.push_back(std::move(question));
        answered(take(saves));
    }
    void
    askWhatToOpen(OpenQuestion question,
                  std::function<void(std::optional<std::filesystem::path>)> answered) override {
        openQuestions.push_back(std::move(question));
        answered(take(paths));
    }

    // Answers, the next one first: titles of buttons, names, places.
    std::deque<std::string> buttons, names;
    std::deque<SaveAnswer> saves;
    std::deque<std::filesystem::path> paths;
    // What was asked.
    std::vector<Question> questions;
    std::vector<NameQuestion> nameQuestions;
    std::vector<SaveQuestion> saveQuestions;
    std::vector<OpenQuestion> openQuestions;
    std::optional<std::string> refusal;       ///< of the last name
    std::optional<NameQuestion::Clash> clash; ///< of the last name

private:
    template <class T>
    static std::optional<T> take(std::deque<T>& answers) {
        if (answers.empty()) return std::nullopt;
        auto answer = std::move(answers.front());
        answers.pop_front();
        return answer;
    }
};

class RecordingLog final : public Log {
public:
    void line(std::string_view text) override { lines.emplace_back(text); }
    std::vector<std::string> lines;
};

/// Everything that models need, in memory.
struct FakeDesktop {
    explicit FakeDesktop(std::filesystem::path trashFolder) : trash(std::move(trashFolder)) {}

    ManualLoop loop;
    FixedChance chance;
    ManualBackground background;
    MemoryDefaults defaults;
    MemoryClipboard clipboard;
    FolderTrash trash;
    RecordingFileBrowser fileBrowser;
    ManualFolderWatch folderWatch;
    RecordingScripting scripting;
    RecordingToasts toasts;
    ScriptedDialogues dialogues;
    RecordingLog log;
    Services services{loop,        chance,      loop,      background, defaults,  clipboard, trash,
                      fileBrowser, folderWatch, scripting, toasts,     dialogues, log};
};

} // namespace tintra
