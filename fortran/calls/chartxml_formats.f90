! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Beyond the procedures' own: parts of display formats, as Fortran has it.
module chartxml_formats
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_formats
  implicit none
  private
  public :: add_meta, set_meta_weight, add_format, get_variable_num_format, add_string_format, &
    add_date_format, add_number_format, add_number_format_of_type, &
    set_number_format_max_fraction_digits, set_number_format_prefix, set_number_format_suffix, &
    set_number_scientific

contains

  !> Gives a variable its meta, at most one. handle: the meta, new or known.
  subroutine add_meta(chart, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_meta', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addmeta(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Says whether a variable weights cases.
  subroutine set_meta_weight(chart, meta, weight, stat, errmsg)
    class(*), intent(in) :: chart, meta, weight
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_meta_weight', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'meta', meta)
    call this%take_logical(3, 'weight', weight)
    if (this%sound) this%result = chartxml_setmetaweight(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a meta the display format of a column.
  subroutine add_format(chart, meta, column, stat, errmsg)
    class(*), intent(in) :: chart, meta, column
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_format', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'meta', meta)
    call this%take(3, 'column', column)
    if (this%sound) this%result = chartxml_addformat(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Finds a variable's number format.
  function get_variable_num_format(chart, variable, stat, errmsg) result(answer)
    class(*), intent(in) :: chart, variable
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('get_variable_num_format', stat, answers=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    if (this%sound) this%result = chartxml_getvariablenumformat(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Has a variable shown as text. handle: the new format, or -1 for any other node, silently.
  subroutine add_string_format(chart, meta, handle, stat, errmsg)
    class(*), intent(in) :: chart, meta
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_string_format', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'meta', meta)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addstringformat(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Has a variable shown as date or time.
  subroutine add_date_format(chart, meta, format_type, format_width, stat, errmsg)
    class(*), intent(in) :: chart, meta, format_type, format_width
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_date_format', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'meta', meta)
    call this%take(3, 'format_type', format_type)
    call this%take(4, 'format_width', format_width)
    if (this%sound) this%result = chartxml_adddateformat(this%i(1), this%i(2), this%i(3), &
      this%i(4))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a number format with nothing said about it. handle: the new number format.
  subroutine add_number_format(chart, format_parent, handle, stat, errmsg)
    class(*), intent(in) :: chart, format_parent
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_number_format', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'format_parent', format_parent)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addnumberformat(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the number format of a type. handle: the new number format.
  subroutine add_number_format_of_type(chart, meta, format_type, format_width, decimals, handle, &
      stat, errmsg)
    class(*), intent(in) :: chart, meta, format_type, format_width, decimals
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_number_format_of_type', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'meta', meta)
    call this%take(3, 'format_type', format_type)
    call this%take(4, 'format_width', format_width)
    call this%take(5, 'decimals', decimals)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addnumberformatoftype(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%i(5))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the digits after the decimal sign at most.
  subroutine set_number_format_max_fraction_digits(chart, number_format, fraction_digits_string, &
      stat, errmsg)
    class(*), intent(in) :: chart, number_format, fraction_digits_string
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_number_format_max_fraction_digits', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'number_format', number_format)
    call this%take_string(3, 'fraction_digits_string', fraction_digits_string)
    if (this%sound) this%result = chartxml_setnumberformatmaxfractiondigits(this%i(1), this%i(2), &
      this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets what stands before the number.
  subroutine set_number_format_prefix(chart, number_format, prefix, stat, errmsg)
    class(*), intent(in) :: chart, number_format, prefix
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_number_format_prefix', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'number_format', number_format)
    call this%take_string(3, 'prefix', prefix)
    if (this%sound) this%result = chartxml_setnumberformatprefix(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets what stands behind the number.
  subroutine set_number_format_suffix(chart, number_format, unit_suffix, stat, errmsg)
    class(*), intent(in) :: chart, number_format, unit_suffix
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_number_format_suffix', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'number_format', number_format)
    call this%take_string(3, 'unit_suffix', unit_suffix)
    if (this%sound) this%result = chartxml_setnumberformatsuffix(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says whether the number has an exponent.
  subroutine set_number_scientific(chart, number_format, scientific, stat, errmsg)
    class(*), intent(in) :: chart, number_format, scientific
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_number_scientific', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'number_format', number_format)
    call this%take_logical(3, 'scientific', scientific)
    if (this%sound) this%result = chartxml_setnumberscientific(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
