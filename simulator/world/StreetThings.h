#pragma once

#include "simulator/world/Builder.h"

namespace fieldcal::world {

/// A parked car: body, cabin with glass, wheels and lamps. `foot` is the middle of its shadow; `turn` as of a box.
void addCar(Builder& builder, const cv::Vec3f& foot, float turn);

/// A round basin of stone with water in it.
void addFountain(Builder& builder, const cv::Vec3f& foot, float radius);

/// A lamp post of iron. Its head shines when the builder's lamps are lit.
void addLamp(Builder& builder, const cv::Vec3f& foot);

/// A board on two posts, with lettering of which some vanishes in the near infrared. Faces along −`turn`.
void addSign(Builder& builder, const cv::Vec3f& foot, float turn);

/// A bench or a tub with a bush, by chance.
void addFurniture(Builder& builder, const cv::Vec3f& foot, float turn);

}  // namespace fieldcal::world
