#include "simulator/world/Sway.h"

#include "simulator/synthesis/Noise.h"
#include "simulator/world/Shapes.h"

#include <algorithm>

namespace fieldcal::world {

void Sway::plant(std::size_t first, const cv::Vec3f& foot, float height, float tip) {
    give.resize(mesh.vertices.size(), 0);
    for (std::size_t i = first; i < mesh.vertices.size(); ++i) {
        const cv::Vec3f away = mesh.vertices[i].position - foot;
        const float up = std::clamp(-away[1] / height, 0.0F, 1.0F);
        const float out = std::sqrt(away[0] * away[0] + away[2] * away[2]) / height;
        give[i] = tip * std::pow(up, 1.5F) * (0.6F + out);
    }
}

cv::Vec3f Sway::positionAt(std::size_t vertex, int step) const {
    const Vertex& v = mesh.vertices[vertex];
    const float phase = static_cast<float>(step % kSteps) / kSteps;
    // Gusts run along x; every leaf flutters independently.
    const float gust = 0.05F * v.position[0] + 0.02F * v.position[2];
    const int leaf = static_cast<int>(v.texture[0]);
    const float own = synthesis::Noise::cell(leaf, leaf >> 8, 91);
    const float along =
        0.6F * std::sin(kFullTurnRad * (phase - gust)) + 0.4F * std::sin(kFullTurnRad * (2 * phase - 2.3F * gust));
    const float across = 0.3F * std::sin(kFullTurnRad * (2 * phase - 1.4F * gust + 0.3F));
    const float flutter = 0.25F * std::sin(kFullTurnRad * (3 * phase + own));
    const cv::Vec3f away(along + 0.3F * flutter, 0.15F * along + 0.5F * flutter, across + 0.6F * flutter);
    return v.position + away * give[vertex];
}

}  // namespace fieldcal::world
