! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Variables and data, as Fortran has it.
module chartxml_variables
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_variables
  implicit none
  private
  public :: add_source, add_variable, add_labeling_variable, add_weight_variable, set_variable, &
    set_aggregate_external, set_variable_label, set_variable_name, set_variable_value, &
    set_variable_categorical, get_variable_label, add_aggregate, add_weight_aggregate, &
    add_labeling_aggregate, begin_variable_list, add_to_variable_list, add_overlay_variable, &
    add_range_variable, add_matrix_variable, get_variable_format, set_variable_format, &
    create_log_var, add_relabel, add_relabels, all_data_doubles, add_row, add_data_value, &
    add_double_data_value

contains

  !> Adds a data source, named "source" and its number from 0. handle: the new source.
  subroutine add_source(chart, handle, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_source', stat)
    call this%take(1, 'chart', chart)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addsource(this%i(1))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares a variable of the procedure as a column of a source, with its label and, when it is
  !> not categorical, its display format. handle: the new variable. Refuses a variable number out of
  !> range; that there are no data.
  subroutine add_variable(chart, source, variable_number, categorical, handle, stat, errmsg)
    class(*), intent(in) :: chart, source, variable_number
    class(*), intent(in), optional :: categorical
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'source', source)
    call this%take(3, 'variable_number', variable_number)
    call this%take_logical(4, 'categorical', categorical)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addvariable(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares a variable of the procedure whose values label others. handle: the new variable.
  !> Refuses a variable number out of range; that there are no data.
  subroutine add_labeling_variable(chart, source, variable_number, categorical, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, source, variable_number
    class(*), intent(in), optional :: categorical
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_labeling_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'source', source)
    call this%take(3, 'variable_number', variable_number)
    call this%take_logical(4, 'categorical', categorical)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlabelingvariable(this%i(1), this%i(2), this%i(3), &
      this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares the variable of the procedure that weights the cases. handle: the new variable.
  !> Refuses a variable number out of range; that there are no data.
  subroutine add_weight_variable(chart, source, variable_number, handle, stat, errmsg)
    class(*), intent(in) :: chart, source, variable_number
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_weight_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'source', source)
    call this%take(3, 'variable_number', variable_number)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addweightvariable(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Points a variable node at another variable of the procedure, whose label and display format it
  !> takes; it keeps the column that its values are stored in. Refuses a variable number out of
  !> range; that there are no data.
  subroutine set_variable(chart, variable, variable_number, categorical, stat, errmsg)
    class(*), intent(in) :: chart, variable, variable_number
    class(*), intent(in), optional :: categorical
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take(3, 'variable_number', variable_number)
    call this%take_logical(4, 'categorical', categorical)
    if (this%sound) this%result = cx_setvariable(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Marks a variable as computed outside the chart.
  subroutine set_aggregate_external(chart, variable, stat, errmsg)
    class(*), intent(in) :: chart, variable
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_aggregate_external', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    if (this%sound) this%result = cx_setaggregateexternal(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Labels a variable; backslash and "n" become a line feed.
  subroutine set_variable_label(chart, variable, caption, stat, errmsg)
    class(*), intent(in) :: chart, variable, caption
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_variable_label', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_string(3, 'caption', caption)
    if (this%sound) this%result = cx_setvariablelabel(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a variable its short label; backslash and "n" become a line feed.
  subroutine set_variable_name(chart, variable, name, stat, errmsg)
    class(*), intent(in) :: chart, variable, name
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_variable_name', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_string(3, 'name', name)
    if (this%sound) this%result = cx_setvariablename(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Makes a variable a constant.
  subroutine set_variable_value(chart, variable, value_string, stat, errmsg)
    class(*), intent(in) :: chart, variable, value_string
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_variable_value', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_string(3, 'value_string', value_string)
    if (this%sound) this%result = cx_setvariablevalue(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says whether the values of a variable are categories, which have no display format.
  subroutine set_variable_categorical(chart, variable, categorical, stat, errmsg)
    class(*), intent(in) :: chart, variable, categorical
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_variable_categorical', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_logical(3, 'categorical', categorical)
    if (this%sound) this%result = cx_setvariablecategorical(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Registers a variable's label, or its short label when it has none.
  function get_variable_label(chart, variable, stat, errmsg) result(answer)
    class(*), intent(in) :: chart, variable
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('get_variable_label', stat, answers=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    if (this%sound) this%result = cx_getvariablelabel(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Declares a column that the procedure computes. The source may also be a variable: the column
  !> then joins that variable's source. The names 135, 140 and 141 stand for case number, count and
  !> percentage; any other is numbered. handle: the new variable.
  subroutine add_aggregate(chart, source, name, categorical, label, short_label, domain, handle, &
      stat, errmsg)
    class(*), intent(in) :: chart, source
    class(*), intent(in), optional :: name, categorical, label, short_label, domain
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_aggregate', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'source', source)
    call this%take_string(3, 'name', name)
    call this%take_logical(4, 'categorical', categorical)
    call this%take_string(5, 'label', label)
    call this%take_string(6, 'short_label', short_label)
    call this%take(7, 'domain', domain)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addaggregate(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%i(6), this%i(7))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a computed variable that weights cases. handle: the new variable.
  subroutine add_weight_aggregate(chart, source, name, label, handle, stat, errmsg)
    class(*), intent(in) :: chart, source
    class(*), intent(in), optional :: name, label
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_weight_aggregate', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'source', source)
    call this%take_string(3, 'name', name)
    call this%take_string(4, 'label', label)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addweightaggregate(this%i(1), this%i(2), this%i(3), &
      this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares a column that the procedure computes and whose values label others, else as
  !> cx_addaggregate_ does. handle: the new variable.
  subroutine add_labeling_aggregate(chart, source, name, categorical, label, short_label, domain, &
      handle, stat, errmsg)
    class(*), intent(in) :: chart, source
    class(*), intent(in), optional :: name, categorical, label, short_label, domain
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_labeling_aggregate', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'source', source)
    call this%take_string(3, 'name', name)
    call this%take_logical(4, 'categorical', categorical)
    call this%take_string(5, 'label', label)
    call this%take_string(6, 'short_label', short_label)
    call this%take(7, 'domain', domain)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlabelingaggregate(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%i(5), this%i(6), this%i(7))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Begins a list of variables. handle: the new list, from 0 upward.
  subroutine begin_variable_list(chart, handle, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('begin_variable_list', stat)
    call this%take(1, 'chart', chart)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_beginvariablelist(this%i(1))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a variable to a list; it may be there already. Refuses a list that was not begun; a node
  !> that is no variable.
  subroutine add_to_variable_list(chart, list, variable, stat, errmsg)
    class(*), intent(in) :: chart, list, variable
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_to_variable_list', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'list', list)
    call this%take(3, 'variable', variable)
    if (this%sound) this%result = cx_addtovariablelist(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares the variable that shows all variables of a list at once, labelled as the x axis in
  !> role 1, else as the y axis. handle: the new variable. Refuses a list that was not begun; a bad
  !> role.
  subroutine add_overlay_variable(chart, list, role, handle, stat, errmsg)
    class(*), intent(in) :: chart, list, role
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_overlay_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'list', list)
    call this%take(3, 'role', role)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addoverlayvariable(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> The same in role 2. handle: the new variable. Refuses a list that was not begun.
  subroutine add_range_variable(chart, list, handle, stat, errmsg)
    class(*), intent(in) :: chart, list
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_range_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'list', list)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addrangevariable(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares the variable that shows the variables of a list side by side, each with a constant
  !> that tells its label. handle: the new variable. Refuses a list that was not begun.
  subroutine add_matrix_variable(chart, list, handle, stat, errmsg)
    class(*), intent(in) :: chart, list
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_matrix_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'list', list)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addmatrixvariable(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Tells a variable's display format. Refuses a variable number out of range; that there are no
  !> data.
  function get_variable_format(chart, variable_number, stat, errmsg) result(answer)
    class(*), intent(in) :: chart, variable_number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('get_variable_format', stat, answers=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable_number', variable_number)
    if (this%sound) this%result = cx_getvariableformat(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Replaces a variable's display format; a type that is neither of numbers nor of dates leaves
  !> none.
  subroutine set_variable_format(chart, variable, packed_format, stat, errmsg)
    class(*), intent(in) :: chart, variable, packed_format
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_variable_format', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take(3, 'packed_format', packed_format)
    if (this%sound) this%result = cx_setvariableformat(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Marks a variable for a log scale.
  subroutine create_log_var(chart, variable, stat, errmsg)
    class(*), intent(in) :: chart, variable
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('create_log_var', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    if (this%sound) this%result = cx_createlogvar(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Shows one value of a variable under another text. handle: the new relabel, or -1 for a text
  !> that XML does not allow, silently. Refuses a node that is no variable.
  subroutine add_relabel(chart, variable, from, to, handle, stat, errmsg)
    class(*), intent(in) :: chart, variable, from, to
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_relabel', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_string(3, 'from', from)
    call this%take_string(4, 'to', to)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addrelabel(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Shows the values of a variable under their value labels. Refuses a node that is no variable; a
  !> variable number out of range; that there are no data.
  subroutine add_relabels(chart, variable, variable_number, stat, errmsg)
    class(*), intent(in) :: chart, variable, variable_number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_relabels', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take(3, 'variable_number', variable_number)
    if (this%sound) this%result = cx_addrelabels(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Has every later data value stored as a number.
  subroutine all_data_doubles(chart, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('all_data_doubles', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_alldatadoubles(this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Starts the next row of data; a bad chart handle is refused silently.
  subroutine add_row(chart, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_row', stat)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_addrow(this%i(1), 0_c_int64_t)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Puts a text into the current row, as a number when it reads as one. A bad chart handle and a
  !> string handle of -1 are refused silently; a value that the chart refuses discards the whole
  !> chart.
  subroutine add_data_value(chart, variable, value_string, stat, errmsg)
    class(*), intent(in) :: chart, variable, value_string
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_data_value', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_string(3, 'value_string', value_string)
    if (this%sound) this%result = cx_adddatavalue(this%i(1), 0_c_int64_t, this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Puts a number into the current row. A bad chart handle is refused silently; a value that the
  !> chart refuses discards the whole chart.
  subroutine add_double_data_value(chart, variable, value, stat, errmsg)
    class(*), intent(in) :: chart, variable, value
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_double_data_value', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_real(1, 'value', value)
    if (this%sound) this%result = cx_adddoubledatavalue(this%i(1), 0_c_int64_t, this%i(2), &
      this%r(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
