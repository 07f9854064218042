#include "benches/Samples.h"

#include <algorithm>

namespace velmora::bench {

Milliseconds median(std::vector<Milliseconds> samples) {
    const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
    std::nth_element(samples.begin(), middle, samples.end());
    return *middle;
}

Milliseconds quickest(const std::vector<Milliseconds>& samples) {
    return *std::min_element(samples.begin(), samples.end());
}

}  // namespace velmora::bench
