#pragma once

#include <string>

namespace render {

/// The gallery page. It is the same for every output folder: what it shows is in the
/// list beside it, and its words are those of the reader's language.
std::string galleryPage();

} // namespace render
