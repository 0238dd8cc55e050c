#pragma once

#include "guide/guide.h"

namespace torvane {

/// What is wrong with the guide, each text beginning with the file: elements that are not closed, a chapter
/// without its one heading, sections without a name or with one that is taken, links that lead nowhere,
/// pictures that are missing or lack size or description, and whatever one language has and the other hasn't.
QStringList guideProblems(const Guide& guide);

} // namespace torvane
