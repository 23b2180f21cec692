#pragma once

#include "simulator/world/Builder.h"

namespace fieldcal::world {

/// A parked car: body, cabin with glass, wheels and lamps. `foot` is the centre of its shadow; `turn` as for a box.
void addCar(Builder& builder, const cv::Vec3f& foot, float turn);

/// A round stone basin with water.
void addFountain(Builder& builder, const cv::Vec3f& foot, float radius);

/// A lamp post of iron. Its head shines when the builder's lamps are lit.
void addLamp(Builder& builder, const cv::Vec3f& foot);

/// A board on two posts, with lettering of which part is invisible in the near infrared. It faces along −`turn`.
void addSign(Builder& builder, const cv::Vec3f& foot, float turn);

/// A bench or a tub with a bush, at random.
void addFurniture(Builder& builder, const cv::Vec3f& foot, float turn);

}  // namespace fieldcal::world
