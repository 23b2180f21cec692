#pragma once

#include "simulator/synthesis/Random.h"

#include <array>

namespace fieldcal::synthesis {

/// Normal deviates from a table: a few thousand different ones are enough for noise nobody looks at twice.
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

private:
    Random& random_;
    std::array<float, 8192> values_{};
    std::uint64_t bits_ = 0;  ///< four numbers are drawn at once
    int left_ = 0;
};

}  // namespace fieldcal::synthesis
