! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Beyond the procedures' own: parts of display formats: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_formats
  use, intrinsic :: iso_c_binding, only: c_int64_t
  implicit none
  private
  public :: chartxml_addmeta, chartxml_setmetaweight, chartxml_addformat, &
    chartxml_getvariablenumformat, chartxml_addstringformat, chartxml_adddateformat, &
    chartxml_addnumberformat, chartxml_addnumberformatoftype, &
    chartxml_setnumberformatminfractiondigits, chartxml_setnumberformatmaxfractiondigits, &
    chartxml_setnumberformatprefix, chartxml_setnumberformatsuffix, chartxml_setnumberscientific

  interface

    !> Gives a variable its meta, at most one. Returns the meta, new or known.
    integer(c_int64_t) function chartxml_addmeta(chart, variable) &
        bind(C, name="chartxml_addmeta_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Says whether a variable weights cases. Returns the meta, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_setmetaweight(chart, meta, weight) &
        bind(C, name="chartxml_setmetaweight_")
      import
      integer(c_int64_t), intent(in) :: chart, meta, weight
    end function

    !> Gives a meta the display format of a column. Returns -1 in every case.
    integer(c_int64_t) function chartxml_addformat(chart, meta, column) &
        bind(C, name="chartxml_addformat_")
      import
      integer(c_int64_t), intent(in) :: chart, meta, column
    end function

    !> Finds a variable's number format. Returns the number format, or -1 when there is none,
    !> silently.
    integer(c_int64_t) function chartxml_getvariablenumformat(chart, variable) &
        bind(C, name="chartxml_getvariablenumformat_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Has a variable shown as text. Returns the new format, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_addstringformat(chart, meta) &
        bind(C, name="chartxml_addstringformat_")
      import
      integer(c_int64_t), intent(in) :: chart, meta
    end function

    !> Has a variable shown as date or time. Returns -1, also when made, but 0 for a format of
    !> weeks.
    integer(c_int64_t) function chartxml_adddateformat(chart, meta, format_type, format_width) &
        bind(C, name="chartxml_adddateformat_")
      import
      integer(c_int64_t), intent(in) :: chart, meta, format_type, format_width
    end function

    !> Adds a number format with nothing said about it. Returns the new number format.
    integer(c_int64_t) function chartxml_addnumberformat(chart, format_parent) &
        bind(C, name="chartxml_addnumberformat_")
      import
      integer(c_int64_t), intent(in) :: chart, format_parent
    end function

    !> Adds the number format of a type. Returns the new number format.
    integer(c_int64_t) function chartxml_addnumberformatoftype(chart, meta, format_type, &
        format_width, decimals) bind(C, name="chartxml_addnumberformatoftype_")
      import
      integer(c_int64_t), intent(in) :: chart, meta, format_type, format_width, decimals
    end function

    !> Does nothing; there for callers that have it. Returns -1 in every case.
    integer(c_int64_t) function chartxml_setnumberformatminfractiondigits(chart, number_format, &
        fraction_digits) bind(C, name="chartxml_setnumberformatminfractiondigits_")
      import
      integer(c_int64_t), intent(in) :: chart, number_format, fraction_digits
    end function

    !> Sets the digits after the decimal sign at most. Returns 0, or -1 for any other node,
    !> silently.
    integer(c_int64_t) function chartxml_setnumberformatmaxfractiondigits(chart, number_format, &
        fraction_digits_string) bind(C, name="chartxml_setnumberformatmaxfractiondigits_")
      import
      integer(c_int64_t), intent(in) :: chart, number_format, fraction_digits_string
    end function

    !> Sets what stands before the number. Returns 0, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_setnumberformatprefix(chart, number_format, prefix) &
        bind(C, name="chartxml_setnumberformatprefix_")
      import
      integer(c_int64_t), intent(in) :: chart, number_format, prefix
    end function

    !> Sets what stands behind the number. Returns 0, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_setnumberformatsuffix(chart, number_format, unit_suffix) &
        bind(C, name="chartxml_setnumberformatsuffix_")
      import
      integer(c_int64_t), intent(in) :: chart, number_format, unit_suffix
    end function

    !> Says whether the number has an exponent. Returns 0, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_setnumberscientific(chart, number_format, scientific) &
        bind(C, name="chartxml_setnumberscientific_")
      import
      integer(c_int64_t), intent(in) :: chart, number_format, scientific
    end function

  end interface

end module
