#pragma once
// Another program that owns the clipboard.

namespace test {

inline constexpr char kOwnClipboard[] = "--own-clipboard";
inline constexpr char kOwnedText[] = "copied elsewhere", kOwnedHtml[] = "<b>copied</b> elsewhere";
inline constexpr unsigned kOwnedColour = 0xff2a6fc9;
inline constexpr int kOwnedSize = 24;

/// Puts text, HTML and a picture on the clipboard, prints that it is ready, and keeps running.
int ownClipboard(int& argc, char** argv);

} // namespace test
