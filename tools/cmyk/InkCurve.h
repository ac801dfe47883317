#pragma once

namespace tintra::cmyk {

/// Yule-Nielsen factor of the press model: reflectances are averaged as their n-th roots, which
/// accounts for light that spreads in the paper (J. A. C. Yule, W. J. Nielsen 1951).
inline constexpr double kYuleNielsen = 2.5;

/// The n-th root of a reflectance of at least 0.
[[nodiscard]] double yuleNielsenRoot(double reflectance);

/// A value with its derivative by the argument it was computed from.
struct ValueSlope {
    double value = 0;
    double slope = 0;
};

/// The n-th power; odd, so that a negative root stays negative and the slope is continuous.
[[nodiscard]] ValueSlope yuleNielsenPower(double root);

/// How the tone of one ink becomes coverage of the paper. The tone value increase of the printed
/// ramp is the published one, whatever the Yule-Nielsen factor is.
class InkCurve {
public:
    /// `solid` is the reflectance of the full ink against the paper's, more than 0, less than 1;
    /// `gain` the increase at a tone of 0.5, more than 0, less than 0.25.
    InkCurve(double solid, double gain);

    /// Both take arguments outside 0..1 as the nearer end, and both are increasing from 0 to 1.
    [[nodiscard]] double coverage(double tone) const;
    [[nodiscard]] ValueSlope tone(double coverage) const;

private:
    double solid_;
    double solidRoot_;
    double bend_;
};

} // namespace tintra::cmyk
