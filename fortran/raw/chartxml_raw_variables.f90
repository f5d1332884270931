! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Variables and data: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_variables
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  implicit none
  private
  public :: cx_addsource, cx_addvariable, cx_addlabelingvariable, cx_addweightvariable, &
    cx_setvariable, cx_setaggregateexternal, cx_setvariablelabel, cx_setvariablename, &
    cx_setvariablevalue, cx_setvariablecategorical, cx_getvariablelabel, cx_addaggregate, &
    cx_addweightaggregate, cx_addlabelingaggregate, cx_beginvariablelist, cx_addtovariablelist, &
    cx_addoverlayvariable, cx_addrangevariable, cx_addmatrixvariable, cx_getvariableformat, &
    cx_setvariableformat, cx_createlogvar, cx_addrelabel, cx_addrelabels, cx_alldatadoubles, &
    cx_addrow, cx_adddatavalue, cx_adddoubledatavalue

  interface

    !> Adds a data source, named "source" and its number from 0. Returns the new source.
    integer(c_int64_t) function cx_addsource(chart) bind(C, name="cx_addsource_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Declares a variable of the procedure as a column of a source, with its label and, when it is
    !> not categorical, its display format. Returns the new variable. Reports a variable number out
    !> of range; that there are no data.
    integer(c_int64_t) function cx_addvariable(chart, source, variable_number, categorical) &
        bind(C, name="cx_addvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, source, variable_number, categorical
    end function

    !> Declares a variable of the procedure whose values label others. Returns the new variable.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_addlabelingvariable(chart, source, variable_number, &
        categorical) bind(C, name="cx_addlabelingvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, source, variable_number, categorical
    end function

    !> Declares the variable of the procedure that weights the cases. Returns the new variable.
    !> Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_addweightvariable(chart, source, variable_number) &
        bind(C, name="cx_addweightvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, source, variable_number
    end function

    !> Points a variable node at another variable of the procedure, whose label and display format
    !> it takes; it keeps the column that its values are stored in. Returns the variable. Reports a
    !> variable number out of range; that there are no data.
    integer(c_int64_t) function cx_setvariable(chart, variable, variable_number, categorical) &
        bind(C, name="cx_setvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, variable_number, categorical
    end function

    !> Marks a variable as computed outside the chart. Returns the variable's meta.
    integer(c_int64_t) function cx_setaggregateexternal(chart, variable) &
        bind(C, name="cx_setaggregateexternal_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Labels a variable; backslash and "n" become a line feed. Returns the variable.
    integer(c_int64_t) function cx_setvariablelabel(chart, variable, caption) &
        bind(C, name="cx_setvariablelabel_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, caption
    end function

    !> Gives a variable its short label; backslash and "n" become a line feed. Returns the variable.
    integer(c_int64_t) function cx_setvariablename(chart, variable, name) &
        bind(C, name="cx_setvariablename_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, name
    end function

    !> Makes a variable a constant. Returns the variable.
    integer(c_int64_t) function cx_setvariablevalue(chart, variable, value_string) &
        bind(C, name="cx_setvariablevalue_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, value_string
    end function

    !> Says whether the values of a variable are categories, which have no display format. Returns
    !> the variable.
    integer(c_int64_t) function cx_setvariablecategorical(chart, variable, categorical) &
        bind(C, name="cx_setvariablecategorical_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, categorical
    end function

    !> Registers a variable's label, or its short label when it has none. Returns the new string
    !> handle.
    integer(c_int64_t) function cx_getvariablelabel(chart, variable) &
        bind(C, name="cx_getvariablelabel_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Declares a column that the procedure computes. The source may also be a variable: the column
    !> then joins that variable's source. The names 135, 140 and 141 stand for case number, count
    !> and percentage; any other is numbered. Returns the new variable.
    integer(c_int64_t) function cx_addaggregate(chart, source, name, categorical, label, &
        short_label, domain) bind(C, name="cx_addaggregate_")
      import
      integer(c_int64_t), intent(in) :: chart, source, name, categorical, label, short_label, &
        domain
    end function

    !> Adds a computed variable that weights cases. Returns the new variable.
    integer(c_int64_t) function cx_addweightaggregate(chart, source, name, label) &
        bind(C, name="cx_addweightaggregate_")
      import
      integer(c_int64_t), intent(in) :: chart, source, name, label
    end function

    !> Declares a column that the procedure computes and whose values label others, else as
    !> cx_addaggregate_ does. Returns the new variable.
    integer(c_int64_t) function cx_addlabelingaggregate(chart, source, name, categorical, label, &
        short_label, domain) bind(C, name="cx_addlabelingaggregate_")
      import
      integer(c_int64_t), intent(in) :: chart, source, name, categorical, label, short_label, &
        domain
    end function

    !> Begins a list of variables. Returns the new list, from 0 upward.
    integer(c_int64_t) function cx_beginvariablelist(chart) bind(C, name="cx_beginvariablelist_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Adds a variable to a list; it may be there already. Returns the list. Reports a list that was
    !> not begun; a node that is no variable.
    integer(c_int64_t) function cx_addtovariablelist(chart, list, variable) &
        bind(C, name="cx_addtovariablelist_")
      import
      integer(c_int64_t), intent(in) :: chart, list, variable
    end function

    !> Declares the variable that shows all variables of a list at once, labelled as the x axis in
    !> role 1, else as the y axis. Returns the new variable. Reports a list that was not begun; a
    !> bad role.
    integer(c_int64_t) function cx_addoverlayvariable(chart, list, role) &
        bind(C, name="cx_addoverlayvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, list, role
    end function

    !> The same in role 2. Returns the new variable. Reports a list that was not begun.
    integer(c_int64_t) function cx_addrangevariable(chart, list) &
        bind(C, name="cx_addrangevariable_")
      import
      integer(c_int64_t), intent(in) :: chart, list
    end function

    !> Declares the variable that shows the variables of a list side by side, each with a constant
    !> that tells its label. Returns the new variable. Reports a list that was not begun.
    integer(c_int64_t) function cx_addmatrixvariable(chart, list) &
        bind(C, name="cx_addmatrixvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, list
    end function

    !> Tells a variable's display format. Returns the format, packed as type * 65536 + width * 256 +
    !> decimals. Reports a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_getvariableformat(chart, variable_number) &
        bind(C, name="cx_getvariableformat_")
      import
      integer(c_int64_t), intent(in) :: chart, variable_number
    end function

    !> Replaces a variable's display format; a type that is neither of numbers nor of dates leaves
    !> none. Returns the variable.
    integer(c_int64_t) function cx_setvariableformat(chart, variable, packed_format) &
        bind(C, name="cx_setvariableformat_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, packed_format
    end function

    !> Marks a variable for a log scale. Returns the chart argument in every case.
    integer(c_int64_t) function cx_createlogvar(chart, variable) bind(C, name="cx_createlogvar_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Shows one value of a variable under another text. Returns the new relabel, or -1 for a text
    !> that XML does not allow, silently. Reports a node that is no variable.
    integer(c_int64_t) function cx_addrelabel(chart, variable, from, to) &
        bind(C, name="cx_addrelabel_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, from, to
    end function

    !> Shows the values of a variable under their value labels. Returns the variable. Reports a node
    !> that is no variable; a variable number out of range; that there are no data.
    integer(c_int64_t) function cx_addrelabels(chart, variable, variable_number) &
        bind(C, name="cx_addrelabels_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, variable_number
    end function

    !> Has every later data value stored as a number. Returns the chart argument in every case.
    integer(c_int64_t) function cx_alldatadoubles(chart) bind(C, name="cx_alldatadoubles_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Starts the next row of data; a bad chart handle is refused silently. Returns the number of
    !> rows.
    integer(c_int64_t) function cx_addrow(chart, row_source) bind(C, name="cx_addrow_")
      import
      integer(c_int64_t), intent(in) :: chart, row_source
    end function

    !> Puts a text into the current row, as a number when it reads as one. A bad chart handle and a
    !> string handle of -1 are refused silently; a value that the chart refuses discards the whole
    !> chart. Returns 0, also when the node is no variable with a column.
    integer(c_int64_t) function cx_adddatavalue(chart, row_source, variable, value_string) &
        bind(C, name="cx_adddatavalue_")
      import
      integer(c_int64_t), intent(in) :: chart, row_source, variable, value_string
    end function

    !> Puts a number into the current row. A bad chart handle is refused silently; a value that the
    !> chart refuses discards the whole chart. Returns 0, also when the node is no variable with a
    !> column.
    integer(c_int64_t) function cx_adddoubledatavalue(chart, row_source, variable, value) &
        bind(C, name="cx_adddoubledatavalue_")
      import
      integer(c_int64_t), intent(in) :: chart, row_source, variable
      real(c_double), intent(in) :: value
    end function

  end interface

end module
