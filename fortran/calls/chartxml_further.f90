! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Beyond the procedures' own: nodes and texts, as Fortran has it.
module chartxml_further
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_further
  implicit none
  private
  public :: add_r, add_phi, add_size, set_size_low, set_size_high, add_stack, add_transform, &
    add_reference_line, add_fit, add_legend_target, set_facets_different_scale, copy_variable, &
    get_variable_index, set_procedure, set_global_string_table, reset_strings

contains

  !> Adds the distance from the centre to an element or position. handle: the new r. Refuses any
  !> other parent.
  subroutine add_r(chart, parent, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_r', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addr(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the second angle to an element or position. handle: the new phi. Refuses any other parent.
  subroutine add_phi(chart, parent, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_phi', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addphi(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Sizes an element or its labels by a variable. handle: the new size. Refuses any other parent.
  subroutine add_size(chart, element_or_labeling, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element_or_labeling, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_size', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element_or_labeling', element_or_labeling)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addsize(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the size of the lowest value.
  subroutine set_size_low(chart, size, low, stat, errmsg)
    class(*), intent(in) :: chart, size, low
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_size_low', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'size', size)
    call this%take_string(3, 'low', low)
    if (this%sound) this%result = chartxml_setsizelow(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the size of the highest value.
  subroutine set_size_high(chart, size, high, stat, errmsg)
    class(*), intent(in) :: chart, size, high
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_size_high', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'size', size)
    call this%take_string(3, 'high', high)
    if (this%sound) this%result = chartxml_setsizehigh(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Stacks, or does not stack, the element of a position.
  subroutine add_stack(chart, position_node, stack, stat, errmsg)
    class(*), intent(in) :: chart, position_node, stack
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_stack', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'position_node', position_node)
    call this%take_logical(3, 'stack', stack)
    if (this%sound) this%result = chartxml_addstack(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a transform to an axis or another node. handle: the new transform.
  subroutine add_transform(chart, node, method, handle, stat, errmsg)
    class(*), intent(in) :: chart, node, method
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_transform', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'node', node)
    call this%take_string(3, 'method', method)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addtransform(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a line at a value of x or y to a frame. handle: the new guide. Refuses a node that is no
  !> frame.
  subroutine add_reference_line(chart, frame, line_role, value_string, guide_style, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, line_role, value_string
    class(*), intent(in), optional :: guide_style
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_reference_line', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'line_role', line_role)
    call this%take_string(4, 'value_string', value_string)
    call this%take(5, 'guide_style', guide_style)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addreferenceline(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%i(5))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Fills an open composite, which is a formula in x with "^1" and "^2", and adds its curve to a
  !> frame. handle: the new guide, or -1 for an infinite coefficient, silently. Refuses a node that
  !> is no frame.
  subroutine add_fit(chart, frame, composite, b1, b2, guide_style, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, composite, b1, b2
    class(*), intent(in), optional :: guide_style
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'composite', composite)
    call this%take(4, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addyofxwithab(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%r(1), this%r(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Has a legend explain an element or guide. handle: the new legend target. Refuses a node that is
  !> no legend.
  subroutine add_legend_target(chart, legend_node, target, suffix, aesthetic, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, legend_node, target
    class(*), intent(in), optional :: suffix, aesthetic
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_legend_target', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'legend_node', legend_node)
    call this%take(3, 'target', target)
    call this%take_string(4, 'suffix', suffix)
    call this%take_string(5, 'aesthetic', aesthetic)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_addlegendtarget(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%i(5))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives each panel a scale of its own.
  subroutine set_facets_different_scale(chart, dimension, stat, errmsg)
    class(*), intent(in) :: chart, dimension
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_facets_different_scale', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'dimension', dimension)
    if (this%sound) this%result = chartxml_setfacetsdifferentscale(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Declares a variable once more. handle: the new variable.
  subroutine copy_variable(chart, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('copy_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = chartxml_copyvariable(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Tells the column of a variable of the procedure. Refuses a number that no variable has.
  function get_variable_index(variable_number, stat, errmsg) result(answer)
    class(*), intent(in) :: variable_number
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('get_variable_index', stat, answers=.true.)
    call this%take(1, 'variable_number', variable_number)
    if (this%sound) this%result = chartxml_getvariableindex(this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Changes the procedure's name: the chart's, unless its handle is -1, and the string table that
  !> goes first.
  subroutine set_procedure(chart, procedure_name, stat, errmsg)
    class(*), intent(in) :: chart
    character(*), intent(in) :: procedure_name
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_procedure', stat)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = chartxml_setprocedure(this%i(1), procedure_name, &
      len(procedure_name, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Names the folder of the string tables that every procedure shares.
  subroutine set_global_string_table(path, stat, errmsg)
    character(*), intent(in) :: path
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_global_string_table', stat)
    if (this%sound) this%result = chartxml_setglobalstringtable(path, len(path, c_int64_t))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Forgets every text but the predefined ones; string handles start again.
  subroutine reset_strings(stat, errmsg)
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('reset_strings', stat)
    if (this%sound) this%result = chartxml_resetstrings()
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
