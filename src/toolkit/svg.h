#pragma once

#include <string>
#include <string_view>

#include "toolkit/geometry.h"
#include "toolkit/picture.h"

// Pictures as SVG, for the page and for the icons.

/// Text as the content of an element or of a quoted attribute.
std::string Escaped(std::string_view text);

/// An attribute, with a blank before it.
std::string Attribute(const char* name, std::string_view value);
std::string Attribute(const char* name, int value);
std::string Attribute(const char* name, Color color);

/// The attributes x, y, width and height.
std::string PlaceAttributes(const Rect& place);

/// The attribute viewBox, from 0,0.
std::string ViewBox(int width, int height);

/// A picture as an element. `attributes` give its place, which it fills.
std::string PictureMarkup(const Picture& picture, const std::string& attributes);

/// A picture as a document of its own.
std::string IconMarkup(const Picture& picture);
