#pragma once

#include <string>

/// A text whose lines were broken by hand, for a box too narrow for them: each paragraph on one
/// line, to be wrapped anew. Paragraphs are what stands between blank lines; CR LF breaks a line.
std::string JoinBrokenLines(const std::string& text);
