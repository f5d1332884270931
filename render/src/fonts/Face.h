#pragma once

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include <unicode/umachine.h>

struct hb_font_t;

namespace render {

/// A face of a font, as its file has it.
class Face {
public:
  /// Of a file that holds several the one whose name is among the quoted `families`. A
  /// file that is missing or no font gives a face without characters.
  Face(const std::filesystem::path& file, std::string_view families);

  /// Whether there is a font in the file.
  bool isThere() const;
  bool has(UChar32 character) const;
  /// The font with these characters, and what else is needed to set them, alone: its
  /// bytes. Empty when the file is damaged.
  std::string subset(const std::set<UChar32>& characters) const;

private:
  std::unique_ptr<hb_font_t, void (*)(hb_font_t*)> font_;
};

} // namespace render
