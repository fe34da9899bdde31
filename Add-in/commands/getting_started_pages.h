#pragma once
// Texts of the introduction.
#include <array>

namespace fernwick {

/// One page of the slide show.
struct GettingStartedPage {
    const char* title;
    /// File name of its picture in the add-in's folder.
    const char* picture;
    /// Lines separated by CR LF.
    const char* body;
};

inline constexpr int kGettingStartedPages = 9;
extern const std::array<GettingStartedPage, kGettingStartedPages> kGettingStarted;

/// Numbers, from 0, of the pages with links.
inline constexpr int kWebsitePage = 7;
inline constexpr int kNextStepsPage = 8;

namespace getting_started_texts {

inline constexpr char kCaption[] = "Introduction to Fernwick";
/// Separates the page number from the number of pages.
inline constexpr char kOf[] = " of ";
inline constexpr char kDontShow[] = "Don't &show this when Fernwick starts";
inline constexpr char kDontShowTip[] =
    "The introduction remains in the Fernwick menu under Samples and Tutorials. This "
    "setting applies to all users of this computer";

inline constexpr char kSupportLink[] = "Support site with Knowledge Base";
inline constexpr char kSamplesLink[] = "Example code and demos";
inline constexpr char kForumLink[] = "Developer's forum";

inline constexpr char kTutorialLink[] = "Hello World Tutorial";
inline constexpr char kInstalledSamplesLink[] = "Other Samples and Tutorials";
inline constexpr char kGuideLink[] = "Review the User's Guide";
inline constexpr char kDevelopersLink[] = "Developer's Sector on the Quinloft website";

inline constexpr char kTitle[] = "Fernwick";
/// Followed by the target of the link.
inline constexpr char kCantOpen[] = "Unable to open resource on network or machine: ";

} // namespace getting_started_texts

} // namespace fernwick
