! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Beyond the procedures' own: whole columns: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_columns
  use, intrinsic :: iso_c_binding, only: c_char, c_double, c_int64_t
  implicit none
  private
  public :: chartxml_loadnumbers, chartxml_loadtexts

  interface

    !> Stores a column of numbers; rows that are not there yet are added. Returns 0. Reports a
    !> variable without a column; rows beyond 1 to 2147483647.
    integer(c_int64_t) function chartxml_loadnumbers(chart, variable, first_row, numbers, &
        number_count) bind(C, name="chartxml_loadnumbers_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, first_row
      real(c_double), intent(in) :: numbers(*)
      integer(c_int64_t), intent(in) :: number_count
    end function

    !> Stores a column of texts, without the blanks at their ends, as numbers where they read as
    !> such; rows that are not there yet are added. Returns 0. Reports a variable without a column;
    !> rows beyond 1 to 2147483647.
    integer(c_int64_t) function chartxml_loadtexts(chart, variable, first_row, texts, &
        texts_length, text_count) bind(C, name="chartxml_loadtexts_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, first_row
      character(kind=c_char), intent(in) :: texts(*)
      integer(c_int64_t), intent(in) :: texts_length, text_count
    end function

  end interface

end module
