#pragma once

#include "zendara/form/children.hpp"
#include "zendara/render/surface/font.hpp"
#include "zendara/render/surface/image.hpp"

namespace zendara
{

/// What a screen would show of a window or of one child with all that lies in it, at 96 dots per inch.
/// @param glyphs  where the letters come from
Image paint_child(Child& child, GlyphSource& glyphs);

} // namespace zendara
