#include "ocore/Models/PrinterTables.h"

#include "resources/ids.h"

namespace zent {

namespace {

// The columns are model, display name and family.
// clang-format off
constexpr ModelInfo models[] = {
    { 1, IDS_MODEL_LUMASET_510,    7},
    { 2, IDS_MODEL_LUMASET_520,    8},
    { 3, IDS_MODEL_LUMASET_521,    8},
    { 4, IDS_MODEL_LUMASET_540,   17},
    { 5, IDS_MODEL_LUMASET_541,   17},
    { 6, IDS_MODEL_LUMASET_610,    6},
    { 7, IDS_MODEL_LUMASET_611,    6},
    { 8, IDS_MODEL_LUMASET_612,    6},
    { 9, IDS_MODEL_LUMASET_613,    6},
    {10, IDS_MODEL_LUMASET_614,    6},
    {11, IDS_MODEL_LUMASET_511,    7},
    {12, IDS_MODEL_LUMASET_522,    8},
    {13, IDS_MODEL_LUMASET_523,    8},
    {14, IDS_MODEL_LUMASET_640,   16},
    {15, IDS_MODEL_LUMASET_641,   16},
    {16, IDS_MODEL_LUMASET_430,   14},
    {17, IDS_MODEL_LUMASET_450,   11},
    {18, IDS_MODEL_LUMASET_470,   10},
    {19, IDS_MODEL_LUMASET_451,   11},
    {20, IDS_MODEL_LUMASET_471,   10},
    {21, IDS_MODEL_LUMASET_452,   11},
    {22, IDS_MODEL_LUMASET_472,   10},
    {23, IDS_MODEL_LUMASET_453,   11},
    {24, IDS_MODEL_LUMASET_473,   10},
    {25, IDS_MODEL_LUMASET_480,   12},
    {26, IDS_MODEL_LUMASET_474,   10},
    {27, IDS_MODEL_LUMASET_481,   12},
    {28, IDS_MODEL_LUMASET_810,   15},
    {29, IDS_MODEL_LUMASET_811,   15},
    {30, IDS_MODEL_LUMASET_812,   15},
    {31, IDS_MODEL_LUMASET_813,   15},
    {32, IDS_MODEL_LUMASET_410,   13},
    {33, IDS_MODEL_LUMASET_411,   13},
    {34, IDS_MODEL_LUMASET_454,   11},
    {35, IDS_MODEL_LUMASET_431,   14},
    {36, IDS_MODEL_LUMASET_432,   14},
    {37, IDS_MODEL_CHROMASET_720,  1},
    {38, IDS_MODEL_CHROMASET_721,  1},
    {39, IDS_MODEL_CHROMASET_750,  3},
    {40, IDS_MODEL_CHROMASET_780,  5},
    {41, IDS_MODEL_CHROMASET_560, 18},
    {42, IDS_MODEL_CHROMASET_580, 19},
    {43, IDS_MODEL_CHROMASET_900, 21},
    {44, IDS_MODEL_LUMASET_620,   20},
    {45, IDS_MODEL_LUMASET_621,   20},
    {46, IDS_MODEL_LUMASET_622,   20},
    {47, IDS_MODEL_CHROMASET_740,  2},
    {48, IDS_MODEL_LUMASET_680,    9},
    {49, IDS_MODEL_LUMASET_681,    9},
    {50, IDS_MODEL_LUMASET_682,    9},
    {51, IDS_MODEL_CHROMASET_760,  4},
};
// clang-format on

} // namespace

std::span<const ModelInfo> getModelTable() { return models; }

} // namespace zent
