! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Axes, as Fortran has it.
module chartxml_axes
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_axes
  implicit none
  private
  public :: add_axis, add_major_ticks, add_minor_ticks, set_axis_percent, set_log_unsafe, &
    add_dimension_axis, add_xy_dimensions, add_xy_dimensions_with_axes, &
    add_xy_dimensions_with_same_ratio

contains

  !> Adds an axis to a dimension. handle: the new axis.
  subroutine add_axis(chart, parent, suffix, opposite, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: suffix, opposite
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_axis', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'suffix', suffix)
    call this%take_logical(4, 'opposite', opposite)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addaxis(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the labelled ticks to an axis. handle: the new ticks. Refuses that a style is taken,
  !> beside other ticks of the axis.
  subroutine add_major_ticks(chart, parent, position, grid_lines, length, label_angle, stagger, &
      delta, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: position, grid_lines, length, label_angle, stagger, delta
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_major_ticks', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'position', position)
    call this%take_logical(4, 'grid_lines', grid_lines)
    call this%take_string(5, 'length', length)
    call this%take_string(6, 'label_angle', label_angle)
    call this%take_logical(7, 'stagger', stagger)
    call this%take_string(8, 'delta', delta)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addmajorticks(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%i(6), this%i(7), this%i(8))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the ticks between the major ones to an axis. handle: the new ticks. Refuses that the mark
  !> style is taken, beside major ticks.
  subroutine add_minor_ticks(chart, parent, position, grid_lines, length, tick_count, handle, &
      stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: position, grid_lines, length, tick_count
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_minor_ticks', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'position', position)
    call this%take_logical(4, 'grid_lines', grid_lines)
    call this%take_string(5, 'length', length)
    call this%take_string(6, 'tick_count', tick_count)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addminorticks(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%i(6))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Shows an axis in percent.
  subroutine set_axis_percent(chart, node, format_parent, stat, errmsg)
    class(*), intent(in) :: chart, node, format_parent
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_axis_percent', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'node', node)
    call this%take(3, 'format_parent', format_parent)
    if (this%sound) this%result = cx_setaxispercent(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Turns off the "safe" parameter of the y scale.
  subroutine set_log_unsafe(chart, stat, errmsg)
    class(*), intent(in) :: chart
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_log_unsafe', stat, any_result=.true.)
    call this%take(1, 'chart', chart)
    if (this%sound) this%result = cx_setlogunsafe(this%i(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a frame a dimension with axis and ticks. handle: the dimension, or -1 for an axis role
  !> outside 1 to 3, silently.
  subroutine add_dimension_axis(chart, parent, axis_role, domain, opposite, style, axis, &
      upper_margin, lower_margin, upper_mapping, lower_mapping, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, axis_role
    class(*), intent(in), optional :: domain, opposite, upper_margin, lower_margin, upper_mapping, &
      lower_mapping
    class(*), intent(inout), optional :: style, axis, handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_dimension_axis', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'axis_role', axis_role)
    call this%take(4, 'domain', domain)
    call this%take_logical(5, 'opposite', opposite)
    call this%take_output(1, 'style', style)
    call this%take_output(2, 'axis', axis)
    call this%take_string(6, 'upper_margin', upper_margin)
    call this%take_string(7, 'lower_margin', lower_margin)
    call this%take_string(8, 'upper_mapping', upper_mapping)
    call this%take_string(9, 'lower_mapping', lower_mapping)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_adddimensionaxis(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%o(1), this%o(2), this%i(6), this%i(7), this%i(8), this%i(9))
    call this%give(1, style)
    call this%give(2, axis)
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a frame x and y dimensions with axes and ticks. handle: the x dimension.
  subroutine add_xy_dimensions(chart, parent, x_domain, y_domain, x_opposite, y_opposite, x_style, &
      x_axis, y_style, y_axis, x_upper_margin, x_lower_margin, y_upper_margin, y_lower_margin, &
      x_upper_mapping, x_lower_mapping, y_upper_mapping, y_lower_mapping, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: x_domain, y_domain, x_opposite, y_opposite, x_upper_margin, &
      x_lower_margin, y_upper_margin, y_lower_margin, x_upper_mapping, x_lower_mapping, &
      y_upper_mapping, y_lower_mapping
    class(*), intent(inout), optional :: x_style, x_axis, y_style, y_axis, handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_xy_dimensions', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'x_domain', x_domain)
    call this%take(4, 'y_domain', y_domain)
    call this%take_logical(5, 'x_opposite', x_opposite)
    call this%take_logical(6, 'y_opposite', y_opposite)
    call this%take_output(1, 'x_style', x_style)
    call this%take_output(2, 'x_axis', x_axis)
    call this%take_output(3, 'y_style', y_style)
    call this%take_output(4, 'y_axis', y_axis)
    call this%take_string(7, 'x_upper_margin', x_upper_margin)
    call this%take_string(8, 'x_lower_margin', x_lower_margin)
    call this%take_string(9, 'y_upper_margin', y_upper_margin)
    call this%take_string(10, 'y_lower_margin', y_lower_margin)
    call this%take_string(11, 'x_upper_mapping', x_upper_mapping)
    call this%take_string(12, 'x_lower_mapping', x_lower_mapping)
    call this%take_string(13, 'y_upper_mapping', y_upper_mapping)
    call this%take_string(14, 'y_lower_mapping', y_lower_mapping)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addxydimension(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%i(6), this%o(1), this%o(2), this%o(3), this%o(4), this%i(7), this%i(8), &
      this%i(9), this%i(10), this%i(11), this%i(12), this%i(13), this%i(14))
    call this%give(1, x_style)
    call this%give(2, x_axis)
    call this%give(3, y_style)
    call this%give(4, y_axis)
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a frame x and y dimensions with axes, ticks and margins of 5%. handle: the x dimension.
  subroutine add_xy_dimensions_with_axes(chart, parent, x_domain, y_domain, x_opposite, &
      y_opposite, x_style, x_axis, y_style, y_axis, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: x_domain, y_domain, x_opposite, y_opposite
    class(*), intent(inout), optional :: x_style, x_axis, y_style, y_axis, handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_xy_dimensions_with_axes', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'x_domain', x_domain)
    call this%take(4, 'y_domain', y_domain)
    call this%take_logical(5, 'x_opposite', x_opposite)
    call this%take_logical(6, 'y_opposite', y_opposite)
    call this%take_output(1, 'x_style', x_style)
    call this%take_output(2, 'x_axis', x_axis)
    call this%take_output(3, 'y_style', y_style)
    call this%take_output(4, 'y_axis', y_axis)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addxydimensionwithaxis(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%i(5), this%i(6), this%o(1), this%o(2), this%o(3), this%o(4))
    call this%give(1, x_style)
    call this%give(2, x_axis)
    call this%give(3, y_style)
    call this%give(4, y_axis)
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a frame x and y dimensions with axes, ticks and margins of 0%, whose units have one
  !> length. handle: the x dimension.
  subroutine add_xy_dimensions_with_same_ratio(chart, parent, x_domain, y_domain, x_opposite, &
      y_opposite, same_ratio, x_style, x_axis, y_style, y_axis, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: x_domain, y_domain, x_opposite, y_opposite, same_ratio
    class(*), intent(inout), optional :: x_style, x_axis, y_style, y_axis, handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_xy_dimensions_with_same_ratio', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'x_domain', x_domain)
    call this%take(4, 'y_domain', y_domain)
    call this%take_logical(5, 'x_opposite', x_opposite)
    call this%take_logical(6, 'y_opposite', y_opposite)
    call this%take_logical(7, 'same_ratio', same_ratio)
    call this%take_output(1, 'x_style', x_style)
    call this%take_output(2, 'x_axis', x_axis)
    call this%take_output(3, 'y_style', y_style)
    call this%take_output(4, 'y_axis', y_axis)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addxydimaxiswithsameratio(this%i(1), this%i(2), this%i(3), &
      this%i(4), this%i(5), this%i(6), this%i(7), this%o(1), this%o(2), this%o(3), this%o(4))
    call this%give(1, x_style)
    call this%give(2, x_axis)
    call this%give(3, y_style)
    call this%give(4, y_axis)
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

end module
