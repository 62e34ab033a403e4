// The house colours by name, so that all pictures agree.
#pragma once

#include "art/core/vec.h"

// clang-format off
// ground, sky, sea
constexpr Colour PAINT_GRASS_DARK    = HexColour(0x6da336);
constexpr Colour PAINT_GRASS_MID     = HexColour(0x84b83c);
constexpr Colour PAINT_GRASS_LIGHT   = HexColour(0x9ccb4e);
constexpr Colour PAINT_GRASS_FAR     = HexColour(0xb9d977);
constexpr Colour PAINT_BLADE_LIGHT   = HexColour(0xd2ee7c);
constexpr Colour PAINT_BLADE_DARK    = HexColour(0x3f7a24);
constexpr Colour PAINT_SKY_TOP       = HexColour(0x3d8fe6);
constexpr Colour PAINT_SKY_MID       = HexColour(0x8cc8f8);
constexpr Colour PAINT_SKY_HORIZON   = HexColour(0xe2f5ff);
constexpr Colour PAINT_SEA_BACK      = HexColour(0x4fa4e0);
constexpr Colour PAINT_SEA_BACK_DEEP = HexColour(0x3f8fd4);
constexpr Colour PAINT_SEA_MID       = HexColour(0x3f92d8);
constexpr Colour PAINT_SEA_MID_DEEP  = HexColour(0x2f7cc4);
constexpr Colour PAINT_SEA_FRONT     = HexColour(0x3384cc);
constexpr Colour PAINT_SEA_DEEP      = HexColour(0x246ab0);
constexpr Colour PAINT_SAND          = HexColour(0xecd9a2);
constexpr Colour PAINT_SNOW          = HexColour(0xeef4fb);
constexpr Colour PAINT_NIGHT         = HexColour(0x0c1440);
// shadows under feet, by ground
constexpr Colour PAINT_SHADOW_GRASS  = HexColour(0x10180c);
constexpr Colour PAINT_SHADOW_SNOW   = HexColour(0x141a30);
constexpr Colour PAINT_SHADOW_SAND   = HexColour(0x2a1c10);
constexpr Colour PAINT_SHADOW        = HexColour(0x121816);
// field objects
constexpr Colour PAINT_STONES[4]     = {HexColour(0xb9b2a6), HexColour(0xa49d93), HexColour(0xc6bca8), HexColour(0x969499)};
constexpr Colour PAINT_MOSS          = HexColour(0x86a04e);
constexpr Colour PAINT_CRATE_BOARD[2]= {HexColour(0xc98e4a), HexColour(0xd9a35c)};
constexpr Colour PAINT_CRATE_FRAME[2]= {HexColour(0xa86c30), HexColour(0xb87c3c)};
constexpr Colour PAINT_NAIL          = HexColour(0x5a3c22);
constexpr Colour PAINT_STAVE[2]      = {HexColour(0xa56a38), HexColour(0xb5783e)};
constexpr Colour PAINT_HOOP[2]       = {HexColour(0x5c6270), HexColour(0x6f7686)};
constexpr Colour PAINT_FENCE[2]      = {HexColour(0xf6efe0), HexColour(0xf2ead8)};
constexpr Colour PAINT_TRUNK_DARK    = HexColour(0x5c3d24);
constexpr Colour PAINT_TRUNK_LIGHT   = HexColour(0xa67a4c);
constexpr Colour PAINT_LEAF_GREEN    = HexColour(0x62b03a);
constexpr Colour PAINT_LEAF_ORANGE   = HexColour(0xe88f30);
constexpr Colour PAINT_LEAF_RED      = HexColour(0xcf4632);
constexpr Colour PAINT_PINE[2]       = {HexColour(0x3a8a3e), HexColour(0x2f7a4a)};
constexpr Colour PAINT_ROCK[2]       = {HexColour(0x9a9690), HexColour(0xa39a88)};
// machine and professor
constexpr Colour PAINT_MACHINE       = HexColour(0x2f9ad0);
constexpr Colour PAINT_MACHINE_DEEP  = HexColour(0x1f6fa8);
constexpr Colour PAINT_MACHINE_CREAM = HexColour(0xfff2d8);
constexpr Colour PAINT_MACHINE_BRASS = HexColour(0xe0a83a);
constexpr Colour PAINT_MACHINE_RED   = HexColour(0xd8402c);
constexpr Colour PAINT_TYRE          = HexColour(0x34343e);
constexpr Colour PAINT_MACHINE_STEEL = HexColour(0x9aa4b4);
constexpr Colour PAINT_BUMPER_RED    = HexColour(0xe0402c);
constexpr Colour PAINT_BUMPER_CREAM  = HexColour(0xfff0dc);
constexpr Colour PAINT_STICKY        = HexColour(0x58c83c);
constexpr Colour PAINT_STICKY_LIGHT  = HexColour(0xc8f088);
constexpr Colour PAINT_SKIN          = HexColour(0xf6c79c);
constexpr Colour PAINT_HAIR          = HexColour(0xe6e8f0);
constexpr Colour PAINT_COAT          = HexColour(0xf7f8fc);
constexpr Colour PAINT_TIE           = HexColour(0xd83848);
constexpr Colour PAINT_GLOVES        = HexColour(0x8a5a34);
// metals of trophies
constexpr Colour PAINT_GOLD          = HexColour(0xf2b92e);
constexpr Colour PAINT_SILVER        = HexColour(0xc4ccd8);
constexpr Colour PAINT_BRONZE        = HexColour(0xd08a4e);
// interface
constexpr Colour PAINT_STEEL         = HexColour(0x3f86b8);
constexpr Colour PAINT_STEEL_PLATE   = HexColour(0x4f9cc8);
constexpr Colour PAINT_WINDOW        = HexColour(0x1c140c);
constexpr Colour PAINT_BRASS         = HexColour(0xe0ac44);
constexpr Colour PAINT_BRASS_INK     = HexColour(0x3c2408);
constexpr Colour PAINT_WOOD          = HexColour(0xc58a48);
constexpr Colour PAINT_PAPER         = HexColour(0xfdf3d8);
constexpr Colour PAINT_TEXT          = HexColour(0x2a2438);
constexpr Colour PAINT_TEXT_BROWN    = HexColour(0x4a3018);
constexpr Colour PAINT_TEXT_BLUE     = HexColour(0x12283c);
constexpr Colour PAINT_GO            = HexColour(0x3fa83a);
constexpr Colour PAINT_NEUTRAL       = HexColour(0x2f86d8);
constexpr Colour PAINT_STOP          = HexColour(0xe0502c);
constexpr Colour PAINT_SUNNY         = HexColour(0xf0a020);
constexpr Colour PAINT_CREAM         = HexColour(0xfffaea);
constexpr Colour PAINT_WHITE         = {1, 1, 1};
// clang-format on
