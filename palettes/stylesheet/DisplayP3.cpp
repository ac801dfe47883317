#include "palettes/stylesheet/DisplayP3.h"

#include "colour/Oklab.h"
#include "platform/SrgbCurve.h"

namespace tintra::stylesheet {

namespace {

// clang-format off
/// Linear Display P3 to XYZ under D65, in the exact fractions of CSS Color 4. Full precision
/// matters: stylesheets repeat a colour of sRGB in P3, and both are to round to the same bytes.
constexpr Matrix3 kP3ToXyz{{
    {608311.0 / 1250200, 189793.0 / 714400,  198249.0 / 1000160},
    { 35783.0 /  156275, 247089.0 / 357200,  198249.0 / 2500400},
    {                 0,  32229.0 / 714400, 5220557.0 / 5000800},
}};
/// XYZ under D65 to linear sRGB, of the same source.
constexpr Matrix3 kXyzToRgb{{
    {  12831.0 /   3959,    -329.0 /    214, -1974.0 /   3959},
    {-851781.0 / 878810, 1648619.0 / 878810, 36519.0 / 878810},
    {    705.0 /  12673,   -2585.0 /  12673,   705.0 /    667},
}};
// clang-format on

Rgb product(const Matrix3& m, const Rgb& v) {
    return {m[0][0] * v.r + m[0][1] * v.g + m[0][2] * v.b,
            m[1][0] * v.r + m[1][1] * v.g + m[1][2] * v.b,
            m[2][0] * v.r + m[2][1] * v.g + m[2][2] * v.b};
}

} // namespace

WashColor p3(double r, double g, double b, double alpha) {
    const Rgb linear{srgbDecoded(r), srgbDecoded(g), srgbDecoded(b)};
    const auto srgb = product(kXyzToRgb, product(kP3ToXyz, linear));
    return {srgbEncoded(srgb.r), srgbEncoded(srgb.g), srgbEncoded(srgb.b), alpha};
}

} // namespace tintra::stylesheet
