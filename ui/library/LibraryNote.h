#pragma once

#include <QString>

namespace tintra {

class LibraryModel;
struct LibraryLine;

/// What is said where there is no palette, and the button that it offers.
struct LibraryNote {
    enum class About { noFolders, noPalettes, offline, nothingFound };
    About about = About::noFolders;
    QString title, text, action; ///< no title for one line among others; no action for none
};

/// The note that stands on a line.
LibraryNote noteOf(const LibraryModel& model, const LibraryLine& line);

} // namespace tintra
