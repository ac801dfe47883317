#pragma once

#include <QString>
#include <string_view>

namespace tintra {

class LibraryModel;
struct LibraryLine;

/// What is said where there is no palette, and the button that it offers.
struct LibraryNote {
    enum class About { noFolders, noPalettes, offline, nothingFound };
    About about = About::noFolders;
    QString title, text, action; ///< no title for one line among others; no action for none

    /// Of the button; empty for none.
    std::string_view icon() const { return isFirstStep() ? "plus" : ""; }
    /// The button is what everything begins with.
    bool isFirstStep() const { return about == About::noFolders; }
};

/// The note that stands on a line.
LibraryNote noteOf(const LibraryModel& model, const LibraryLine& line);

} // namespace tintra
