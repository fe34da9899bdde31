#pragma once
// What the introduction tells.
#include <array>

namespace fernwick {

/// One page of the slide show.
struct GettingStartedPage {
    const char* title;
    /// Name of a file in the add-in's folder.
    const char* picture;
    /// Lines, parted by line ends.
    const char* body;
};

inline constexpr int kGettingStartedPages = 9;
extern const std::array<GettingStartedPage, kGettingStartedPages> kGettingStarted;

/// The pages, from 0, that end in a list of links.
inline constexpr int kWebsitePage = 7;
inline constexpr int kNextStepsPage = 8;

namespace getting_started_texts {

inline constexpr char kCaption[] = "Introduction to Fernwick";
/// Between the page's number and the number of pages.
inline constexpr char kOf[] = " of ";
inline constexpr char kDontShow[] = "Don't &show this when Fernwick starts";
inline constexpr char kDontShowTip[] = "The introduction stays in the menu Fernwick, below Samples and Tutorials. This "
                                       "setting is all users' of this machine";

inline constexpr char kSupportLink[] = "Support site with Knowledge Base";
inline constexpr char kSamplesLink[] = "Example code and demos";
inline constexpr char kForumLink[] = "Developer's forum";

inline constexpr char kTutorialLink[] = "Hello World Tutorial";
inline constexpr char kInstalledSamplesLink[] = "Other Samples and Tutorials";
inline constexpr char kGuideLink[] = "Review the User's Guide";
inline constexpr char kDevelopersLink[] = "Developer's Sector on the Quinloft website";

inline constexpr char kTitle[] = "Fernwick";
/// Before what a link leads to.
inline constexpr char kCantOpen[] = "Unable to open resource on network or machine: ";

} // namespace getting_started_texts

} // namespace fernwick
