#pragma once

#include "form/children.hpp"
#include "render/font.hpp"
#include "render/image.hpp"

namespace zendara
{

/// What a screen would show of a window or of one child with all that lies in it, at 96 dots per inch.
/// @param glyphs  where the letters come from
Image paint_child(Child& child, GlyphSource& glyphs);

} // namespace zendara
