#pragma once

#include <cstdint>

namespace quorvane {

/// Colors, numbered as in every document's color table; 0 is no color. Numbers 33 and 34 are
/// crossed in the documents: `eSkyBlue` shows slate blue and `eSlateBlue` sky blue. Any 32-bit
/// number is kept and written as it is.
enum tColorIndex : std::int32_t {
    eNoColor = 0,
    eAquamarine = 1,
    eBisque = 2,
    eBlack = 3,
    eBlue = 4,
    eBrown = 5,
    eChartreuse = 6,
    eCyan = 7,
    eDarkCyan = 8,
    eDarkGray = 9,
    eDarkGreen = 10,
    eDarkMagenta = 11,
    eDarkRed = 12,
    eDarkSlateBlue = 13,
    eDarkYellow = 14,
    eDeepSkyBlue = 15,
    eGold = 16,
    eGray = 17,
    eGreen = 18,
    eLightBlue = 19,
    eLightGreen = 20,
    eLightYellow = 21,
    eLimeGreen = 22,
    eMagenta = 23,
    eNavyBlue = 24,
    eOliveGreen = 25,
    eOrange = 26,
    ePeachPuff = 27,
    ePink = 28,
    ePurple = 29,
    eRed = 30,
    eSeaGreen = 31,
    eSilver = 32,
    eSkyBlue = 33,
    eSlateBlue = 34,
    eTurquoise = 35,
    eWhite = 36,
    eYellow = 37,
    eBrick = 38,
    eCork = 39,
    eYellowCork = 40,
    eDarkCork = 41,
    eDarkSilver = 42,
    eGrayBlue = 43,
    eDarkNavyBlue = 44,
    eLightRoyalBlue = 45,
    eViolet = 46,
    eDodgerBlue = 47,
    eSargassoGreen = 48,
    eRoyalBlue = 49,
    eLightSeaGreen = 50,
    eDeepPurple = 51,
    eSteelBlue = 52,
    eAsphalt = 53,
    eDarkGoldenRod = 54,
    eDarkGrass = 55,
    eGrass = 56,
    eRedBrick = 57,
};

/// Border widths in twips; -1 is no border. Any other number is written as it is.
enum tBorderWidth : std::int32_t {
    eNone = -1,
    eHair = 5,
    eThin = 10,
    eNormal = 20,
    eThick = 30,
};

/// Units of a cell's width: percent of the text area, or twips. Any other value counts as twips
/// when a width is set, and as percent when it is read.
enum tWidthUnit : std::int32_t {
    ePercent = 0,
    eTwips = 1,
};

/// Alignments of paragraphs; 0 leaves the alignment to the paragraph's style.
enum tCellAlign : std::int32_t {
    eNoDefault = 0,
    eCentered = 1,
    eLeft = 2,
    eRight = 3,
    eJustified = 4,
};

/// Kinds of the driver's errors. The number of an error is -2147221504 (0x80040000) plus its level.
enum tErrorLevel : std::int32_t {
    eNoStyleSheet = 1,
    eWrongFileType = 2,
    eWrongPath = 3,
    eRequiredElementMissing = 4,
    eWrongRootNode = 5,
    eWrongKeyword = 6,
    eWrongNumberOfNodes = 7,
    eWrongValue = 8,
    eWrongStyleSheet = 9,
    eWrongNodeType = 10,
    eSyntaxError = 11,
};

}  // namespace quorvane
