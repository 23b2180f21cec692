#pragma once

#include <vector>

namespace fieldcal {

/// What the interface says about a photo. It does not decide whether the photo is used: every selected pair is, except
/// in the final fit, for which `AttemptRecord` leaves out pairs that moved or disagree with the others.
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

/// Areas of the image without detail show plain surfaces. The camera should turn towards the opposite side, so that the
/// scenery with detail moves into these areas. `areas`: as above, four across and three down, row by row.
Look nextLook(const std::vector<double>& areas);

}  // namespace fieldcal
