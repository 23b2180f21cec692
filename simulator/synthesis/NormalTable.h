#pragma once

#include "simulator/synthesis/Random.h"

#include <array>
#include <vector>

namespace fieldcal::synthesis {

/// Normal deviates from a table: a few thousand different values are sufficient for image noise.
class NormalTable {
public:
    explicit NormalTable(Random& random) : random_(random) {
        for (float& v : values_)
            v = static_cast<float>(random.normal());
    }
    float next() {
        if (left_ == 0) {
            bits_ = random_.bits();
            left_ = 4;
        }
        const std::uint64_t drawn = bits_;
        bits_ >>= 16;
        --left_;
        return values_[drawn % values_.size()];
    }
    /// Fills `out` faster than separate calls would.
    void next(std::vector<float>& out) {
        std::size_t i = 0;
        while (i < out.size() && left_ > 0)
            out[i++] = next();
        for (; i + 4 <= out.size(); i += 4) {
            const std::uint64_t drawn = random_.bits();
            for (std::size_t k = 0; k < 4; ++k)
                out[i + k] = values_[(drawn >> (16 * k)) % values_.size()];
        }
        while (i < out.size())
            out[i++] = next();
    }

private:
    Random& random_;
    std::array<float, 8192> values_{};
    std::uint64_t bits_ = 0;  ///< four numbers are drawn from one set of bits
    int left_ = 0;
};

}  // namespace fieldcal::synthesis
