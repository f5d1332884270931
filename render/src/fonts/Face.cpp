#include "fonts/Face.h"

#include <array>

#include <fmt/format.h>
#include <hb-ot.h>
#include <hb-subset.h>

namespace render {
namespace {

template <auto Destroy> struct Destroyer {
  void operator()(auto* object) const { Destroy(object); }
};
using Blob = std::unique_ptr<hb_blob_t, Destroyer<hb_blob_destroy>>;
using FontFace = std::unique_ptr<hb_face_t, Destroyer<hb_face_destroy>>;
using Input = std::unique_ptr<hb_subset_input_t, Destroyer<hb_subset_input_destroy>>;

/// Lines go from left to right, and bitmaps are drawn without forms that depend on a
/// language or are asked for by name.
constexpr std::array unusedFeatures{"locl", "vert", "vrt2", "vkrn", "vpal", "valt",
                                    "jalt", "frac", "numr", "dnom", "rand"};
constexpr std::array unusedTables{"MATH", "VORG", "vhea", "vmtx"};

hb_tag_t tagOf(const char* name) { return hb_tag_from_string(name, 4); }

std::string familyOf(hb_face_t* face) {
  std::array<char, 64> name{};
  unsigned size = name.size();
  hb_ot_name_get_utf8(face, HB_OT_NAME_ID_FONT_FAMILY, hb_language_from_string("en", -1), &size,
                      name.data());
  return {name.data(), size};
}

FontFace faceIn(hb_blob_t* file, std::string_view families) {
  for (unsigned i = 0; i < hb_face_count(file); ++i) {
    FontFace face(hb_face_create(file, i));
    if (families.find(fmt::format("'{}'", familyOf(face.get()))) != families.npos) return face;
  }
  return FontFace(hb_face_create(file, 0));
}

} // namespace

Face::Face(const std::filesystem::path& file, std::string_view families)
    : font_(nullptr, hb_font_destroy) {
  const Blob blob(hb_blob_create_from_file(file.c_str()));
  font_.reset(hb_font_create(faceIn(blob.get(), families).get()));
}

bool Face::isThere() const { return hb_face_get_glyph_count(hb_font_get_face(font_.get())) > 0; }

bool Face::has(UChar32 character) const {
  hb_codepoint_t glyph = 0;
  return hb_font_get_nominal_glyph(font_.get(), static_cast<hb_codepoint_t>(character), &glyph) !=
         0;
}

std::string Face::subset(const std::set<UChar32>& characters) const {
  const Input input(hb_subset_input_create_or_fail());
  if (!input) return {};
  for (const UChar32 character : characters)
    hb_set_add(hb_subset_input_unicode_set(input.get()), static_cast<hb_codepoint_t>(character));
  for (const char* feature : unusedFeatures)
    hb_set_del(hb_subset_input_set(input.get(), HB_SUBSET_SETS_LAYOUT_FEATURE_TAG), tagOf(feature));
  for (const char* table : unusedTables)
    hb_set_add(hb_subset_input_set(input.get(), HB_SUBSET_SETS_DROP_TABLE_TAG), tagOf(table));
  // Hints are two thirds of a font, and neither bitmaps nor most screens follow them.
  hb_subset_input_set_flags(input.get(), HB_SUBSET_FLAGS_NO_HINTING);

  const FontFace subset(hb_subset_or_fail(hb_font_get_face(font_.get()), input.get()));
  if (!subset) return {};
  const Blob blob(hb_face_reference_blob(subset.get()));
  unsigned size = 0;
  const char* bytes = hb_blob_get_data(blob.get(), &size);
  return {bytes, size};
}

} // namespace render
