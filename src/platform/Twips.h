#pragma once

namespace velmora {

// Places and sizes of forms that are given in twips are those of a screen of 96 dots to the inch.
inline constexpr int kTwipsPerPixel = 15;

}  // namespace velmora
