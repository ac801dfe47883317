// What the leak checker of the sanitized build passes over.

/// fontconfig keeps what it read of the system's fonts and has no moment to let go of it: the
/// application object that texts of drawings need is never taken down.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:libfontconfig\n";
}
