// What the leak checker of the sanitized build passes over.

/// fontconfig keeps what it read of the system's fonts and has no moment to let go of it: the
/// application object that texts of drawings need is never taken down.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the checker's own name
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
