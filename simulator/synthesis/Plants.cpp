#include "simulator/synthesis/Plants.h"

#include "simulator/synthesis/Materials.h"

#include <cmath>

namespace fieldcal::synthesis {

namespace {

struct Cluster {
    cv::Vec3f centre;  // x, y up from the foot, z away from the viewer; metres
    float radius = 1;
};

/// Paints one plant; lives for the length of `paintPlant`.
class Painter {
public:
    Painter(const PlantShape& shape, const Light& light, const cv::Vec3f& sun, float texelsPerMetre, Random& random)
        : shape_(shape),
          light_(light),
          sun_(sun),
          random_(random),
          texelsPerMetre_(texelsPerMetre),
          canvas_(shape.width * 1.15F, shape.height * 1.08F, texelsPerMetre) {
        leaf_ = materials::leaf.reflectance;
        if (shape.kind == PlantKind::conifer) leaf_ = {0.035F, 0.06F, 0.03F, 0.32F};
        leaf_.red *= random.between(0.7F, 1.8F);
        leaf_ = leaf_.scaled(random.between(0.8F, 1.3F), random.between(0.85F, 1.15F));
    }

    Sprite paint() {
        if (shape_.kind == PlantKind::bare) {
            paintBare();
            return canvas_.finish();
        }
        placeBoughs();
        const std::vector<Cluster> clusters = placeClusters();
        for (const auto& cluster : clusters)
            if (cluster.centre[2] > 0) paintCluster(cluster);
        paintStems(clusters);
        for (const auto& cluster : clusters)
            if (cluster.centre[2] <= 0) paintCluster(cluster);
        return canvas_.finish();
    }

private:
    bool standsOnTrunk() const { return shape_.kind == PlantKind::broadleaf || shape_.kind == PlantKind::conifer; }
    cv::Vec3f randomDirection();
    std::vector<Cluster> placeClusters();
    void placeBoughs();
    Cluster placeCluster();
    void paintCluster(const Cluster& cluster);
    void paintLeaf(const Cluster& cluster, const cv::Vec3f& offset, float depthShade);
    void paintStems(const std::vector<Cluster>& clusters);
    void paintBare();
    void branch(const cv::Vec3f& from, const cv::Vec3f& direction, float length, float width, int generation);
    Spectrum barkLight(float shade) const {
        return materials::bark.reflectance * (light_.sky + light_.sun * (0.55F * shade));
    }

    PlantShape shape_;
    const Light& light_;
    cv::Vec3f sun_;
    Random& random_;
    float texelsPerMetre_;
    Canvas canvas_;
    Spectrum leaf_;
    std::vector<cv::Vec3f> boughs_;  // where a broadleaf's clusters gather, relative to the crown's middle
};

cv::Vec3f Painter::randomDirection() {
    const float up = random_.between(-1, 1), turn = random_.between(0, 6.2832F), flat = std::sqrt(1 - up * up);
    return {flat * std::cos(turn), up, flat * std::sin(turn)};
}

Cluster Painter::placeCluster() {
    const float half = shape_.width * 0.5F;
    const cv::Vec3f d = randomDirection();
    const float out = std::cbrt(random_.between(0.15F, 1.0F));
    switch (shape_.kind) {
        case PlantKind::conifer: {
            const float t = 1 - std::sqrt(random_.between(0.0F, 1.0F));
            const float reach = half * (1 - t) * 0.9F * out;
            return {{d[0] * reach, shape_.height * (0.1F + 0.88F * t), d[2] * reach}, 0.25F + half * 0.28F * (1 - t)};
        }
        case PlantKind::hedge:
            return {
                {random_.between(-half, half) * 0.95F, random_.between(0.1F, 0.9F) * shape_.height, -std::abs(d[2])},
                shape_.height * 0.16F};
        case PlantKind::bush:
            return {{d[0] * out * half * 0.75F, shape_.height * (0.4F + 0.42F * d[1] * out), d[2] * out * half},
                    half * 0.3F};
        default:
            break;
    }
    const float crown = shape_.height * 0.36F;
    const cv::Vec3f& bough = boughs_[random_.index(static_cast<int>(boughs_.size()))];
    const cv::Vec3f at = bough + d * (out * 0.32F);
    return {{at[0] * half * 0.8F, shape_.height - crown * 1.05F + at[1] * crown * 0.85F, at[2] * half},
            half * random_.between(0.10F, 0.22F)};
}

void Painter::placeBoughs() {
    const int count = 9 + random_.index(9);
    boughs_.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        boughs_.push_back(randomDirection() * std::sqrt(random_.between(0.05F, 1.0F)));
}

std::vector<Cluster> Painter::placeClusters() {
    const bool small = shape_.kind == PlantKind::bush;
    int count = small ? 40 : 190;
    if (shape_.kind == PlantKind::hedge) count = static_cast<int>(14 * shape_.width / shape_.height);
    std::vector<Cluster> clusters;
    clusters.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        clusters.push_back(placeCluster());
    std::sort(clusters.begin(), clusters.end(),
              [](const Cluster& a, const Cluster& b) { return a.centre[2] - a.radius > b.centre[2] - b.radius; });
    return clusters;
}

void Painter::paintLeaf(const Cluster& cluster, const cv::Vec3f& offset, float depthShade) {
    const cv::Vec3f facing = offset * (1.0F / cluster.radius);
    const float toSun = 0.5F + 0.5F * facing.dot(sun_);
    const float turned = random_.between(0.5F, 1.45F) * (0.25F + 0.9F * toSun);
    const float shade = std::clamp(toSun * depthShade * turned, 0.02F, 1.3F);
    // Leaves pass most of the near infrared on to the leaves below, so crowns have shallower shadows there.
    const float infraredShade = 0.55F * shade + 0.45F * 0.55F * (0.6F + 0.4F * depthShade);
    Spectrum light = leaf_ * light_.sky * (0.4F + 0.6F * depthShade);
    light +=
        (leaf_ * light_.sun).scaled(shade * random_.between(0.88F, 1.12F), infraredShade * random_.between(0.9F, 1.1F));
    // A waxy leaf mirrors the sky: much for dark green, nothing for the near infrared.
    if (random_.chance(0.12)) light += Spectrum{0.06F, 0.07F, 0.08F, 0.01F} * random_.between(0.2F, 1.6F);
    const float size = std::max(random_.between(0.05F, 0.11F), 0.8F / texelsPerMetre_);
    const cv::Vec3f at = cluster.centre + offset;
    const float slim = shape_.kind == PlantKind::conifer ? 0.35F : random_.between(0.4F, 0.75F);
    canvas_.ellipse({at[0], at[1]}, size * 1.3F, size * slim * 1.3F, random_.between(0, 3.1416F), light);
}

void Painter::paintCluster(const Cluster& cluster) {
    const float leafSize = std::max(0.1F, 1.0F / texelsPerMetre_);
    const float area = cluster.radius * cluster.radius / (leafSize * leafSize);
    const int leaves = std::clamp(static_cast<int>(area * 3.2F), 12, 420);
    // The underside and the heart of the crown lie in the shade of the rest.
    const float heart = shape_.kind == PlantKind::hedge ? shape_.height * 0.3F : shape_.height * 0.55F;
    const cv::Vec3f fromHeart = cluster.centre - cv::Vec3f(0, heart, 0);
    const float reach = std::max(0.5F, std::max(shape_.width * 0.5F, shape_.height * 0.4F));
    const float depthShade = std::clamp(0.55F + 0.75F * fromHeart.dot(sun_) / reach, 0.06F, 1.15F);
    for (int i = 0; i < leaves; ++i) {
        cv::Vec3f d = randomDirection();
        const float inwards = static_cast<float>(i) / static_cast<float>(leaves);
        d[2] = std::abs(d[2]) * (inwards < 0.4F ? 1.0F : -1.0F);  // far leaves first
        const float out = std::cbrt(random_.between(0.05F, 1.0F)) * cluster.radius * 1.15F;
        paintLeaf(cluster, d * out, depthShade * (inwards < 0.4F ? 0.55F : 1.0F));
    }
}

void Painter::paintStems(const std::vector<Cluster>& clusters) {
    if (!standsOnTrunk()) return;
    const float width = shape_.height * 0.035F, top = shape_.height * 0.8F;
    canvas_.bar({0, 0}, {width, top}, width * 1.3F, width * 0.3F, barkLight(0.3F));
    canvas_.bar({-width * 0.3F, 0}, {width * 0.8F, top}, width * 0.5F, width * 0.1F, barkLight(0.9F));
    if (shape_.kind == PlantKind::conifer) return;
    for (std::size_t i = 0; i < clusters.size(); i += 4) {
        const auto& c = clusters[i].centre;
        const float fork = std::min(c[1] * 0.8F, top) * random_.between(0.6F, 1.0F);
        canvas_.bar({width * fork / top, fork}, {c[0], c[1]}, width * 0.4F, 0.02F,
                    barkLight(random_.between(0.1F, 0.8F)));
    }
}

void Painter::branch(const cv::Vec3f& from, const cv::Vec3f& direction, float length, float width, int generation) {
    const cv::Vec3f to = from + direction * length;
    const float thin = std::max(width * 0.68F, 0.5F / texelsPerMetre_);
    canvas_.bar({from[0], from[1]}, {to[0], to[1]}, std::max(width, 0.6F / texelsPerMetre_), thin,
                barkLight(random_.between(0.1F, 0.9F)));
    if (generation == 0) return;
    const int children = generation > 4 ? 3 : 2 + random_.index(2);
    for (int i = 0; i < children; ++i) {
        cv::Vec3f next = direction + randomDirection() * random_.between(0.35F, 0.8F) + cv::Vec3f(0, 0.12F, 0);
        next *= 1.0F / std::sqrt(std::max(1e-3F, next.dot(next)));
        branch(to, next, length * random_.between(0.62F, 0.85F), width * 0.66F, generation - 1);
    }
}

void Painter::paintBare() {
    branch({0, 0, 0}, {0, 1, 0}, shape_.height * 0.24F, shape_.height * 0.04F, 7);
}

}  // namespace

Sprite paintPlant(const PlantShape& shape, const Light& light, const cv::Vec3f& sun, float texelsPerMetre,
                  Random& random) {
    return Painter(shape, light, sun, texelsPerMetre, random).paint();
}

}  // namespace fieldcal::synthesis
