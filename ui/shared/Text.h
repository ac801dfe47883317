#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

// Text between the core (UTF-8) and the interface, and how the system's own texts are worded on
// this desktop.

namespace tintra {

QString fromUtf8(std::string_view text);
std::string toUtf8(const QString& text);

/// A text of the system as this desktop words it: translated by its English source, key symbols
/// replaced (⌘ Ctrl, ⌥ Alt, ⇧ Shift, ⌃ Super; "⌘Z" becomes "Ctrl+Z"), and other desktops' places
/// by this one's ("file manager" for the Finder).
QString shown(std::string_view text);

/// The translation of an English source text of the interface.
QString worded(const char* source);
/// With "%n" replaced by the count, in the right number.
QString worded(const char* one, const char* many, qsizetype count);

/// A name of any length, on one line: control characters are blanks, at most `most` characters with
/// an ellipsis, safe beside left-to-right text whatever its direction.
QString oneLine(std::string_view name, qsizetype most = 200);

/// A path as people write it, on one line: their own folder is "~".
QString shownPath(const std::filesystem::path& path);

} // namespace tintra
