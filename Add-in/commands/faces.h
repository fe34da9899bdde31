#pragma once
// Numbers of the pictures on buttons and menu items, which are 16 by 16.

namespace fernwick {

enum Face : int {
    kNoFace = 0,
    kSettingsFace = 108,
    kCompileFace = 109,
    kDeployFace = 110,
    kUsersGuideFace = 111,
    kZoomFace = 112,
    kDatabaseConverterFace = 113,
    kFontConverterFace = 114,
    kFontViewerFace = 115,
    kGraphicsConverterFace = 116,
    kGraphicsViewerFace = 117,
    kMovieConverterFace = 118,
    kMovieViewerFace = 119,
    kWeirgateFace = 120,
    kDatabaseViewerFace = 121,
    kOpenProjectFace = 122,
    kSampleFace = 123,
    kSampleDirFace = 124,
};

} // namespace fernwick
