#pragma once

#include <vector>

namespace fieldcal {

/// What a photo has contributed to an attempt.
enum class PhotoWorth {
    Useful,
    TooLittleDetail,  ///< it has hardly any verified match
    NothingNew        ///< its matches lie in areas that have enough, although others do not
};

/// `verified`: matches of the photo. `before`, `after`: for each area the share of the required detail, 0..1, without
/// and with the photo; `before` may be empty.
PhotoWorth photoWorth(int verified, const std::vector<double>& before, const std::vector<double>& after);

/// The direction in which the camera should turn before the next photo.
enum class Look { Anywhere, Left, Right, Up, Down };

/// Areas of the image without detail see plain surfaces, so the camera turns away from them: then the scenery with
/// detail, which lies on the other side, moves into them. `areas`: as above, four across and three down, row by row.
Look nextLook(const std::vector<double>& areas);

}  // namespace fieldcal
