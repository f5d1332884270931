! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! All that a procedure needs: each entry point as the library has it (cx_...), the same as
! Fortran would have it, names for predefined strings and roles, columns and texts.
module chartxml
  use chartxml_raw_charts
  use chartxml_raw_texts
  use chartxml_raw_variables
  use chartxml_raw_frames
  use chartxml_raw_elements
  use chartxml_raw_aesthetics
  use chartxml_raw_dimensions
  use chartxml_raw_axes
  use chartxml_raw_guides
  use chartxml_raw_columns
  use chartxml_raw_further
  use chartxml_raw_formats
  use chartxml_raw_calls
  use chartxml_charts
  use chartxml_texts
  use chartxml_variables
  use chartxml_frames
  use chartxml_elements
  use chartxml_aesthetics
  use chartxml_dimensions
  use chartxml_axes
  use chartxml_guides
  use chartxml_further
  use chartxml_formats
  use chartxml_columns
  use chartxml_entry_call, only: stop_when_refused
  use chartxml_strings
  use chartxml_words
  implicit none
end module
