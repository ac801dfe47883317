#pragma once

#include <QtGlobal>

namespace tintra {

/// While it lives, an application object that finds no display ends the process with one sentence
/// and the status 1, where Qt would abort with several.
class NoDisplay final {
public:
    NoDisplay();
    ~NoDisplay();
    NoDisplay(const NoDisplay&) = delete;
    NoDisplay& operator=(const NoDisplay&) = delete;

private:
    QtMessageHandler before_;
};

} // namespace tintra
