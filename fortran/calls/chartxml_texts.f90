! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Texts, as Fortran has it.
module chartxml_texts
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t, c_ptr
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_texts
  implicit none
  private
  public :: translation, string_of, begin_composite, add_parameter, begin_repeat, end_repeat, &
    end_composite, style_string, integer_string, label_of_integer, display_of_integer, &
    real_string, label_of_real, display_of_real, value_string, mean_string, value_label, &
    short_value_label, object_label, split_list, split_header, split_variable_info, weight_info, &
    name_of_variable, label_of_variable, label_of_variable_in, output_cell

contains

  !> Registers the text of a string-table key in the output language; an unknown key stands for
  !> itself.
  function translation(key, stat, errmsg) result(answer)
    character(*), intent(in) :: key
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('translation', stat, answers=.true.)
    if (this%sound) this%result = cx_nstring(0_c_int64_t, key, len(key, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a text as it is.
  function string_of(text, stat, errmsg) result(answer)
    character(*), intent(in) :: text
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('string_of', stat, answers=.true.)
    if (this%sound) this%result = cx_string(0_c_int64_t, text, len(text, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Opens a composite text, whose parameters cx_addparameter_ adds and which cx_endcompositestring_
  !> closes.
  function begin_composite(pattern, stat, errmsg) result(answer)
    character(*), intent(in) :: pattern
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('begin_composite', stat, answers=.true.)
    if (this%sound) this%result = cx_compositestring(0_c_int64_t, pattern, &
      len(pattern, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Adds the next parameter to an open composite. Refuses a string handle that is no open
  !> composite.
  subroutine add_parameter(composite, parameter, stat, errmsg)
    class(*), intent(in) :: composite, parameter
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_parameter', stat)
    call this%take_string(1, 'composite', composite)
    call this%take_string(2, 'parameter', parameter)
    if (this%sound) this%result = cx_addparameter(0_c_int64_t, this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Opens a repeat list: the parameters that follow are its items until cx_endrepeat_. Refuses a
  !> string handle that is no open composite.
  subroutine begin_repeat(composite, stat, errmsg)
    class(*), intent(in) :: composite
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('begin_repeat', stat)
    call this%take_string(1, 'composite', composite)
    if (this%sound) this%result = cx_beginrepeat(0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Closes a repeat list. Refuses a string handle that is no open composite.
  subroutine end_repeat(composite, stat, errmsg)
    class(*), intent(in) :: composite
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('end_repeat', stat)
    call this%take_string(1, 'composite', composite)
    if (this%sound) this%result = cx_endrepeat(0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Closes a composite and puts its text together. Refuses a string handle that is no open
  !> composite.
  function end_composite(composite, stat, errmsg) result(answer)
    class(*), intent(in) :: composite
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('end_composite', stat, answers=.true.)
    call this%take_string(1, 'composite', composite)
    if (this%sound) this%result = cx_endcompositestring(0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a style name: the text of the kind, "_" and the number, such as "title_1".
  function style_string(style_kind, style_index, stat, errmsg) result(answer)
    class(*), intent(in) :: style_kind, style_index
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('style_string', stat, answers=.true.)
    call this%take_string(1, 'style_kind', style_kind)
    call this%take(2, 'style_index', style_index)
    if (this%sound) this%result = cx_stylestring(0_c_int64_t, this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text of a whole number, as for machines.
  function integer_string(number, stat, errmsg) result(answer)
    class(*), intent(in) :: number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('integer_string', stat, answers=.true.)
    call this%take(1, 'number', number)
    if (this%sound) this%result = cx_integer(0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text of a whole number in a display format.
  function label_of_integer(number, format, stat, errmsg) result(answer)
    class(*), intent(in) :: number
    class(*), intent(in), optional :: format
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('label_of_integer', stat, answers=.true.)
    call this%take(1, 'number', number)
    call this%take(2, 'format', format)
    if (this%sound) this%result = cx_ivalue(0_c_int64_t, this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text of a whole number in a display format, as cx_lrvalueasstring_ does.
  function display_of_integer(number, format, stat, errmsg) result(answer)
    class(*), intent(in) :: number
    class(*), intent(in), optional :: format
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('display_of_integer', stat, answers=.true.)
    call this%take(1, 'number', number)
    call this%take(2, 'format', format)
    if (this%sound) this%result = cx_ivalueasstring(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text of a number, as for machines: the shortest that reads back to the same
  !> number.
  function real_string(number, stat, errmsg) result(answer)
    class(*), intent(in) :: number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('real_string', stat, answers=.true.)
    call this%take_real(1, 'number', number)
    if (this%sound) this%result = cx_double(this%r(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text of a number in a display format.
  function label_of_real(number, format, stat, errmsg) result(answer)
    class(*), intent(in) :: number
    class(*), intent(in), optional :: format
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('label_of_real', stat, answers=.true.)
    call this%take_real(1, 'number', number)
    call this%take(1, 'format', format)
    if (this%sound) this%result = cx_lrvalue(0_c_int64_t, this%r(1), this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text of a number in a display format of numbers or dates. In a format of days of
  !> the week (26) or months (27) a number of up to 86400 is a code: 1 is Sunday or January, and
  !> codes go round.
  function display_of_real(number, format, stat, errmsg) result(answer)
    class(*), intent(in) :: number
    class(*), intent(in), optional :: format
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('display_of_real', stat, answers=.true.)
    call this%take_real(1, 'number', number)
    call this%take(1, 'format', format)
    if (this%sound) this%result = cx_lrvalueasstring(this%r(1), this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a value in its variable's display format. Refuses a variable number out of range;
  !> that there are no data.
  function value_string(variable_number, cells, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    real(c_double), intent(in) :: cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('value_string', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_value(this%i(1), cells)
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a mean in its variable's display format with two more decimals. Refuses a variable
  !> number out of range; that there are no data.
  function mean_string(variable_number, cells, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    real(c_double), intent(in) :: cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('mean_string', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_meanvalue(this%i(1), cells)
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a value's label, or the value in its display format when it has none. Refuses a
  !> variable number out of range; that there are no data.
  function value_label(variable_number, cells, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    real(c_double), intent(in) :: cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('value_label', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_valuelabel(0_c_int64_t, this%i(1), cells)
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> The same, shortened at a character. Refuses a variable number out of range; that there are no
  !> data.
  function short_value_label(variable_number, cells, max_length, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number, max_length
    real(c_double), intent(in) :: cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('short_value_label', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    call this%take(2, 'max_length', max_length)
    if (this%sound) this%result = cx_valuelabelshort(this%i(1), cells, this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a value's label in the string table's pattern for objects. Refuses a variable number
  !> out of range; that there are no data.
  function object_label(variable_number, cells, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    real(c_double), intent(in) :: cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('object_label', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_objectlabel(this%i(1), cells)
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers one text of all split variables and their values. Refuses that there are no data, or
  !> no values of the split variables.
  function split_list(split_cells, show_name, show_label, show_value, show_value_label, stat, &
      errmsg) result(answer)
    real(c_double), intent(in) :: split_cells(:)
    class(*), intent(in), optional :: show_name, show_label, show_value, show_value_label
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('split_list', stat, answers=.true.)
    call this%take_logical(1, 'show_name', show_name)
    call this%take_logical(2, 'show_label', show_label)
    call this%take_logical(3, 'show_value', show_value)
    call this%take_logical(4, 'show_value_label', show_value_label)
    if (this%sound) this%result = cx_splitlist(0_c_int64_t, split_cells, 0_c_int64_t, this%i(1), &
      this%i(2), this%i(3), this%i(4))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers "label: value, label: value" of the split variables. Refuses that there are no data,
  !> or no values of the split variables.
  function split_header(split_cells, stat, errmsg) result(answer)
    real(c_double), intent(in) :: split_cells(:)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('split_header', stat, answers=.true.)
    if (this%sound) this%result = cx_splitheader(split_cells, 0_c_int64_t)
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a label followed by all split variables and their values. Refuses a bad label; that
  !> there are no data.
  function split_variable_info(split_cells, split_count, label, show_name, show_label, show_value, &
      show_value_label, show_splits, keyed, stat, errmsg) result(answer)
    real(c_double), intent(in) :: split_cells(:)
    class(*), intent(in) :: split_count
    class(*), intent(in), optional :: label, show_name, show_label, show_value, show_value_label, &
      show_splits, keyed
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('split_variable_info', stat, answers=.true.)
    call this%take_string(1, 'label', label)
    call this%take(2, 'split_count', split_count)
    call this%take_logical(3, 'show_name', show_name)
    call this%take_logical(4, 'show_label', show_label)
    call this%take_logical(5, 'show_value', show_value)
    call this%take_logical(6, 'show_value_label', show_value_label)
    call this%take_logical(7, 'show_splits', show_splits)
    call this%take_logical(8, 'keyed', keyed)
    if (this%sound) this%result = cx_splitvariableinfo(0_c_int64_t, this%i(1), split_cells, &
      this%i(2), this%i(3), this%i(4), this%i(5), this%i(6), this%i(7), this%i(8))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the text that names the weight variable. Refuses a variable number out of range; that
  !> there are no data.
  function weight_info(weight_number, tells_cases, stat, errmsg) result(answer)
    class(*), intent(in) :: weight_number
    class(*), intent(in), optional :: tells_cases
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('weight_info', stat, answers=.true.)
    call this%take(1, 'weight_number', weight_number)
    call this%take_logical(2, 'tells_cases', tells_cases)
    if (this%sound) this%result = cx_weightinfo(0_c_int64_t, 0_c_int64_t, this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a variable's name. Refuses a variable number out of range; that there are no data.
  function name_of_variable(variable_number, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('name_of_variable', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_variablename(0_c_int64_t, 0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers a variable's label, or its name when it has none. Refuses a variable number out of
  !> range; that there are no data.
  function label_of_variable(variable_number, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('label_of_variable', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_variablelabel(0_c_int64_t, 0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Registers the label of a variable of another data set than the charts'. Refuses a variable
  !> number out of range.
  function label_of_variable_in(variable_number, dictionary, procedure_handle, stat, errmsg) &
      result(answer)
    class(*), intent(in) :: variable_number
    type(c_ptr), intent(in), optional :: dictionary, procedure_handle
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('label_of_variable_in', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = cx_variablelabelfromdictionary(this%address(procedure_handle), &
      this%address(dictionary), this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Hands a text to the output system. Refuses an empty text.
  function output_cell(string, stat, errmsg) result(answer)
    class(*), intent(in) :: string
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('output_cell', stat, answers=.true.)
    call this%take_string(1, 'string', string)
    if (this%sound) this%result = cx_tosk(0_c_int64_t, this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

end module
