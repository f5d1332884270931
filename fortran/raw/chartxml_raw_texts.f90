! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Texts: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_texts
  use, intrinsic :: iso_c_binding, only: c_char, c_double, c_int64_t, c_ptr
  implicit none
  private
  public :: cx_nstring, cx_string, cx_nstringnotranslate, cx_compositestring, cx_addparameter, &
    cx_beginrepeat, cx_endrepeat, cx_endcompositestring, cx_stylestring, cx_integer, cx_ivalue, &
    cx_ivalueasstring, cx_double, cx_lrvalue, cx_lrvalueasstring, cx_value, cx_meanvalue, &
    cx_valuelabel, cx_valuelabelshort, cx_objectlabel, cx_splitlist, cx_splitheader, &
    cx_splitvariableinfo, cx_weightinfo, cx_variablename, cx_variablelabel, &
    cx_variablelabelfromdictionary, cx_tosk

  interface

    !> Registers the text of a string-table key in the output language; an unknown key stands for
    !> itself. Returns the new string handle.
    integer(c_int64_t) function cx_nstring(ignored, key, key_length) bind(C, name="cx_nstring_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: key(*)
      integer(c_int64_t), intent(in) :: key_length
    end function

    !> Registers a text as it is. Returns the new string handle.
    integer(c_int64_t) function cx_string(ignored, text, text_length) bind(C, name="cx_string_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Registers a text as it is; the same as cx_string_. Returns the new string handle.
    integer(c_int64_t) function cx_nstringnotranslate(ignored, text, text_length) &
        bind(C, name="cx_nstringnotranslate_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: text(*)
      integer(c_int64_t), intent(in) :: text_length
    end function

    !> Opens a composite text, whose parameters cx_addparameter_ adds and which
    !> cx_endcompositestring_ closes. Returns the composite's string handle.
    integer(c_int64_t) function cx_compositestring(ignored, pattern, pattern_length) &
        bind(C, name="cx_compositestring_")
      import
      integer(c_int64_t), intent(in) :: ignored
      character(kind=c_char), intent(in) :: pattern(*)
      integer(c_int64_t), intent(in) :: pattern_length
    end function

    !> Adds the next parameter to an open composite. Returns 0. Reports a string handle that is no
    !> open composite.
    integer(c_int64_t) function cx_addparameter(ignored, composite, parameter) &
        bind(C, name="cx_addparameter_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite, parameter
    end function

    !> Opens a repeat list: the parameters that follow are its items until cx_endrepeat_. Returns 0.
    !> Reports a string handle that is no open composite.
    integer(c_int64_t) function cx_beginrepeat(ignored, composite) bind(C, name="cx_beginrepeat_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite
    end function

    !> Closes a repeat list. Returns 0. Reports a string handle that is no open composite.
    integer(c_int64_t) function cx_endrepeat(ignored, composite) bind(C, name="cx_endrepeat_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite
    end function

    !> Closes a composite and puts its text together. Returns the composite's own string handle.
    !> Reports a string handle that is no open composite.
    integer(c_int64_t) function cx_endcompositestring(ignored, composite) &
        bind(C, name="cx_endcompositestring_")
      import
      integer(c_int64_t), intent(in) :: ignored, composite
    end function

    !> Registers a style name: the text of the kind, "_" and the number, such as "title_1". Returns
    !> the new string handle.
    integer(c_int64_t) function cx_stylestring(ignored, style_kind, style_index) &
        bind(C, name="cx_stylestring_")
      import
      integer(c_int64_t), intent(in) :: ignored, style_kind, style_index
    end function

    !> Registers the text of a whole number, as for machines. Returns the new string handle.
    integer(c_int64_t) function cx_integer(ignored, number) bind(C, name="cx_integer_")
      import
      integer(c_int64_t), intent(in) :: ignored, number
    end function

    !> Registers the text of a whole number in a display format. Returns the new string handle, or
    !> -1 for a format that shows no number, silently.
    integer(c_int64_t) function cx_ivalue(ignored, number, format) bind(C, name="cx_ivalue_")
      import
      integer(c_int64_t), intent(in) :: ignored, number, format
    end function

    !> Registers the text of a whole number in a display format, as cx_lrvalueasstring_ does.
    !> Returns the new string handle, or -1 for a format that shows no numbers, silently.
    integer(c_int64_t) function cx_ivalueasstring(number, format) &
        bind(C, name="cx_ivalueasstring_")
      import
      integer(c_int64_t), intent(in) :: number, format
    end function

    !> Registers the text of a number, as for machines: the shortest that reads back to the same
    !> number. Returns the new string handle, or -1 for the system-missing value, silently.
    integer(c_int64_t) function cx_double(number) bind(C, name="cx_double_")
      import
      real(c_double), intent(in) :: number
    end function

    !> Registers the text of a number in a display format. Returns the new string handle, or -1 for
    !> the system-missing value and for a format that shows no number, silently.
    integer(c_int64_t) function cx_lrvalue(ignored, number, format) bind(C, name="cx_lrvalue_")
      import
      integer(c_int64_t), intent(in) :: ignored
      real(c_double), intent(in) :: number
      integer(c_int64_t), intent(in) :: format
    end function

    !> Registers the text of a number in a display format of numbers or dates. In a format of days
    !> of the week (26) or months (27) a number of up to 86400 is a code: 1 is Sunday or January,
    !> and codes go round. Returns the new string handle, or -1 for the system-missing value or a
    !> format that shows no numbers, silently.
    integer(c_int64_t) function cx_lrvalueasstring(number, format) &
        bind(C, name="cx_lrvalueasstring_")
      import
      real(c_double), intent(in) :: number
      integer(c_int64_t), intent(in) :: format
    end function

    !> Registers a value in its variable's display format. Returns the new string handle, or -1 for
    !> the system-missing value, silently. Reports a variable number out of range; that there are no
    !> data.
    integer(c_int64_t) function cx_value(variable_number, cells) bind(C, name="cx_value_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> Registers a mean in its variable's display format with two more decimals. Returns the new
    !> string handle, or -1 for the system-missing value, silently. Reports a variable number out of
    !> range; that there are no data.
    integer(c_int64_t) function cx_meanvalue(variable_number, cells) bind(C, name="cx_meanvalue_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> Registers a value's label, or the value in its display format when it has none. Returns the
    !> new string handle; the missing-value label for the system-missing value. Reports a variable
    !> number out of range; that there are no data.
    integer(c_int64_t) function cx_valuelabel(ignored1, variable_number, cells) &
        bind(C, name="cx_valuelabel_")
      import
      integer(c_int64_t), intent(in) :: ignored1, variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> The same, shortened at a character. Returns the new string handle. Reports a variable number
    !> out of range; that there are no data.
    integer(c_int64_t) function cx_valuelabelshort(variable_number, cells, max_length) &
        bind(C, name="cx_valuelabelshort_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
      integer(c_int64_t), intent(in) :: max_length
    end function

    !> Registers a value's label in the string table's pattern for objects. Returns the new string
    !> handle. Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_objectlabel(variable_number, cells) &
        bind(C, name="cx_objectlabel_")
      import
      integer(c_int64_t), intent(in) :: variable_number
      type(*), intent(in) :: cells(*)
    end function

    !> Registers one text of all split variables and their values. Returns the new string handle.
    !> Reports that there are no data, or no values of the split variables.
    integer(c_int64_t) function cx_splitlist(ignored1, split_cells, ignored2, show_name, &
        show_label, show_value, show_value_label) bind(C, name="cx_splitlist_")
      import
      integer(c_int64_t), intent(in) :: ignored1
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored2, show_name, show_label, show_value, &
        show_value_label
    end function

    !> Registers "label: value, label: value" of the split variables. Returns the new string handle.
    !> Reports that there are no data, or no values of the split variables.
    integer(c_int64_t) function cx_splitheader(split_cells, ignored1) &
        bind(C, name="cx_splitheader_")
      import
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored1
    end function

    !> Registers a label followed by all split variables and their values. Returns the new string
    !> handle; the label itself when there are no split variables, or when the words of the string
    !> table are asked for and the values are not. Reports a bad label; that there are no data.
    integer(c_int64_t) function cx_splitvariableinfo(ignored, label, split_cells, split_count, &
        show_name, show_label, show_value, show_value_label, show_splits, keyed) &
        bind(C, name="cx_splitvariableinfo_")
      import
      integer(c_int64_t), intent(in) :: ignored, label
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: split_count, show_name, show_label, show_value, &
        show_value_label, show_splits, keyed
    end function

    !> Registers the text that names the weight variable. Returns the new string handle, or -1 for a
    !> number of 0 or less, silently; that of the unfinished text when the label could not be added.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_weightinfo(ignored1, ignored2, weight_number, tells_cases) &
        bind(C, name="cx_weightinfo_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, weight_number, tells_cases
    end function

    !> Registers a variable's name. Returns the new string handle. Reports a variable number out of
    !> range; that there are no data.
    integer(c_int64_t) function cx_variablename(ignored1, ignored2, variable_number) &
        bind(C, name="cx_variablename_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, variable_number
    end function

    !> Registers a variable's label, or its name when it has none. Returns the new string handle.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_variablelabel(ignored1, ignored2, variable_number) &
        bind(C, name="cx_variablelabel_")
      import
      integer(c_int64_t), intent(in) :: ignored1, ignored2, variable_number
    end function

    !> Registers the label of a variable of another data set than the charts'. Returns the new
    !> string handle, or -1 when the charts have no data, silently. Reports a variable number out of
    !> range.
    integer(c_int64_t) function cx_variablelabelfromdictionary(procedure_handle, dictionary, &
        variable_number) bind(C, name="cx_variablelabelfromdictionary_")
      import
      type(c_ptr), value :: procedure_handle
      type(c_ptr), intent(in) :: dictionary
      integer(c_int64_t), intent(in) :: variable_number
    end function

    !> Hands a text to the output system. Returns the output system's cell handle. Reports an empty
    !> text.
    integer(c_int64_t) function cx_tosk(ignored, string) bind(C, name="cx_tosk_")
      import
      integer(c_int64_t), intent(in) :: ignored, string
    end function

  end interface

end module
