#include "simulator/synthesis/Town.h"

#include "simulator/synthesis/Panorama.h"
#include "simulator/synthesis/StreetThings.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

constexpr float fullTurn = 6.2832F;

cv::Vec2f towards(float azimuth) {
    return {std::sin(azimuth), std::cos(azimuth)};
}

/// A front whose middle lies at the given azimuth and distance, turned by `skew` from facing the viewer.
UprightRectangle frontAt(const Scene& scene, float azimuth, float distance, float length, float height, float skew) {
    UprightRectangle place;
    place.along = towards(azimuth + 1.5708F + skew);
    place.origin = towards(azimuth) * distance - place.along * (length * 0.5F);
    place.length = length;
    place.bottom = -scene.eyeHeight();
    place.height = height;
    return place;
}

UprightRectangle sideOf(const UprightRectangle& front, bool farEnd, float depth) {
    UprightRectangle side = front;
    side.along = {-front.along[1], front.along[0]};
    if (side.along.dot(front.origin + front.along * (front.length * 0.5F)) < 0) side.along = -side.along;
    side.origin = farEnd ? front.origin + front.along * front.length : front.origin;
    side.length = depth;
    return side;
}

FacadeStyle sideStyle(const FacadeStyle& front, Random& random) {
    FacadeStyle side = front;
    side.shops = false;
    side.balconies = 0;
    side.windows = random.chance(0.6);
    return side;
}

/// Chimneys stand a little behind the front, their feet hidden by the roof.
void addChimneys(Scene& scene, const UprightRectangle& front, float rise, Random& random) {
    FacadeStyle style;
    style.windows = false;
    style.masonry = Masonry::brick;
    style.wall = materials::brick;
    const UprightRectangle depth = sideOf(front, false, 1);
    float s = random.between(1, 4);
    while (s < front.length - 1) {
        UprightRectangle chimney = front;
        chimney.origin = front.origin + front.along * s + depth.along * 2.0F;
        chimney.length = random.between(0.5F, 1.1F);
        chimney.bottom = front.bottom + front.height + 0.5F;
        chimney.height = rise + random.between(0.2F, 1.2F);
        scene.add(chimney, style);
        s += random.between(3, 9);
    }
}

void build(Scene& scene, const TownPlan& plan, float azimuth, float width, Random& random) {
    FacadeStyle style = drawFacadeStyle(random);
    if (plan.identicalWindows) style.variety = 0, style.shops = false, style.balconies = 0;
    const float distance = random.between(plan.nearest, plan.farthest);
    const float skew = plan.identicalWindows ? 0 : random.between(-0.55F, 0.55F);
    const float length = 2 * distance * std::tan(width * 0.5F) / std::max(0.6F, std::cos(skew)) * 1.02F;
    const int floors = plan.identicalWindows ? 9 : 2 + random.index(5);
    const float height = style.storey * static_cast<float>(floors) + 0.8F;
    const UprightRectangle front = frontAt(scene, azimuth, distance, length, height, skew);
    scene.add(front, style);
    for (bool farEnd : {false, true})
        scene.add(sideOf(front, farEnd, random.between(8, 16)), sideStyle(style, random));
    if (plan.identicalWindows || random.chance(0.3)) return;
    const float rise = random.between(1.8F, 4.5F);
    scene.addRoof(front, rise, random.chance(0.7));
    addChimneys(scene, front, rise, random);
}

float texelsPerMetreAt(float distance) {
    return std::min(static_cast<float>(Panorama::texelsPerRadian) / distance, 110.0F);
}

}  // namespace

void buildRing(Scene& scene, const TownPlan& plan, Random& random) {
    float azimuth = 0;
    while (azimuth < fullTurn - 0.1F) {
        const float width = std::min(random.between(0.25F, 0.62F), fullTurn - azimuth);
        if (!random.chance(plan.gaps)) build(scene, plan, azimuth + width * 0.5F, width, random);
        azimuth += width;
    }
}

void layLawns(Scene& scene, int count, Random& random) {
    for (int i = 0; i < count; ++i) {
        const cv::Vec2f centre = towards(random.between(0, fullTurn)) * random.between(8, 24);
        if (!scene.ground().isLawn(centre[0], centre[1]))
            scene.ground().add(Lawn{centre, {random.between(2, 7), random.between(2, 7)}});
    }
}

void standThings(Scene& scene, int count, Random& random) {
    for (int i = 0; i < count; ++i) {
        Standing thing;
        thing.azimuth = random.between(0, fullTurn);
        thing.distance = random.between(9, 22);
        const float density = texelsPerMetreAt(thing.distance);
        const cv::Vec2f foot = towards(thing.azimuth) * thing.distance;
        const int kind = random.index(6);
        if (kind == 0)
            thing.sprite = paintLamp(scene.light(), density, random);
        else if (kind == 1)
            thing.sprite = paintBoard(scene.light(), density, random);
        else if (kind == 2)
            thing.sprite = paintCables(scene.light(), density, random);
        else if (!scene.ground().isLawn(foot[0], foot[1]))
            thing.sprite = paintCar(scene.light(), density, random);
        else
            continue;
        scene.add(std::move(thing));
    }
}

}  // namespace fieldcal::synthesis
