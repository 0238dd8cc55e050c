#pragma once

#include "map/map_marks.h"

namespace torvane {

class PictureBox;

/// Draws marks over what a picture shows, in their order, and updates the screen once. The picture's colour
/// is black afterwards.
void drawMarks(PictureBox& picture, const MarkList& marks);

} // namespace torvane
