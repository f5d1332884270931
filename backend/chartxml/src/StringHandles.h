#pragma once

/// Predefined string handles that the builder itself uses.
namespace strings {

inline constexpr int legend = 15;
inline constexpr int subtitle = 16;
inline constexpr int line = 21;
inline constexpr int point = 23;
inline constexpr int inside = 32;
inline constexpr int referenceLine = 50;
inline constexpr int normal = 72;
inline constexpr int none = 86;
inline constexpr int stack = 87;
inline constexpr int matrixScatter = 90;
inline constexpr int matrixScatterX = 91;
inline constexpr int matrixScatterY = 92;
inline constexpr int rectangular = 104;
inline constexpr int theta = 105;
inline constexpr int phi = 106;
inline constexpr int frame = 107;
inline constexpr int plane = 108;
inline constexpr int complete = 109;
inline constexpr int falseWord = 110;
inline constexpr int log = 116;
inline constexpr int base = 117;
inline constexpr int exponent = 118;
inline constexpr int matrixScatterInnerX = 122;
inline constexpr int matrixScatterInnerY = 123;
inline constexpr int naturalLog = 124; ///< has no text
inline constexpr int yzPlane = 125;
inline constexpr int xzPlane = 126;
inline constexpr int xyPlane = 127;
inline constexpr int x = 128;
inline constexpr int y = 129;
inline constexpr int z = 130;
inline constexpr int casenum = 135;
inline constexpr int matrixScatterDiagonal = 136;
inline constexpr int zeta = 137;
inline constexpr int distance = 138;
inline constexpr int countname = 140;
inline constexpr int percentname = 141;
inline constexpr int yFunctionOfX = 142;
inline constexpr int function = 143;
inline constexpr int numPoints = 144;
inline constexpr int yAxis = 148;
inline constexpr int xAxis = 155;

} // namespace strings
