#include "quillet/frame/checked.h"

namespace quillet {

double roundHalfEven(double value, Long decimals) {
    if (decimals < 0) throw Failure(errInvalidCall);
    if (!std::isfinite(value) || decimals > 22) return value;
    // The scaled product is rounded as it stands in binary: 2.675 scaled by
    // 100 is 267.49999..., so it rounds to 2.67, as the original does.
    const double scale = std::pow(10.0, decimals);
    return checked::real(roundHalfEven(value * scale) / scale);
}

}  // namespace quillet
