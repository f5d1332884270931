! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Aesthetics and statistics, as Fortran has it.
module chartxml_aesthetics
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_aesthetics
  implicit none
  private
  public :: add_position, add_x, add_y, add_z, add_theta, add_color, add_style_by, &
    add_style_by_color, add_style_by_pattern, add_style_by_color_and_pattern, add_split, &
    add_labeling, add_labeling_suffix, add_labeling_inside, set_summary_function, add_statistic, &
    add_param, set_display_overlapping_labels, set_label_collision_handling

contains

  !> Gives an element a position of its own, which takes x, y and a statistic. handle: the new
  !> position. Refuses a node that is no element.
  subroutine add_position(chart, element, handle, stat, errmsg)
    class(*), intent(in) :: chart, element
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_position', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addposition(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Puts a variable at x of an element or position. handle: the new x. Refuses any other parent; a
  !> node that is no variable.
  subroutine add_x(chart, parent, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_x', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addx(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Puts a variable at y of an element or position. handle: the new y. Refuses any other parent; a
  !> node that is no variable.
  subroutine add_y(chart, parent, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_y', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addy(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Puts a variable at z of an element or position. handle: the new z. Refuses any other parent; a
  !> node that is no variable.
  subroutine add_z(chart, parent, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_z', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addz(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Puts a variable at the angle of an element or position. handle: the new theta. Refuses any
  !> other parent; a node that is no variable.
  subroutine add_theta(chart, parent, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_theta', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addtheta(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Colors an element by a variable. handle: the new color. Refuses a node that is no element.
  subroutine add_color(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_color', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addcolor(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Groups an element by a variable, in the styles of the default cycle; points become hollow.
  !> handle: the new styleBy. Refuses a node that is no element.
  subroutine add_style_by(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_style_by', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addstyleby(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Groups an element by a variable, one color a group. handle: the new styleBy. Refuses a node
  !> that is no element.
  subroutine add_style_by_color(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_style_by_color', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addstylebycolor(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Groups an element by a variable, one pattern a group. handle: the new styleBy. Refuses a node
  !> that is no element.
  subroutine add_style_by_pattern(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_style_by_pattern', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addstylebypattern(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Groups an element by a variable, one color and pattern a group. handle: the new styleBy.
  !> Refuses a node that is no element.
  subroutine add_style_by_color_and_pattern(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_style_by_color_and_pattern', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addstylebycolorandpattern(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Draws an element once for each category of a variable. handle: the new split. Refuses a node
  !> that is no element.
  subroutine add_split(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_split', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addsplit(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Labels the parts of an element with the values of a variable. handle: the new labeling. Refuses
  !> a node that is no element.
  subroutine add_labeling(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_labeling', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlabeling(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> The same with a style of its own. handle: the new labeling. Refuses a node that is no element.
  subroutine add_labeling_suffix(chart, element, variable, label_style, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(in), optional :: label_style
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_labeling_suffix', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_string(4, 'label_style', label_style)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlabelingsuffix(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> The same with the style of labels inside. handle: the new labeling. Refuses a node that is no
  !> element.
  subroutine add_labeling_inside(chart, element, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, element, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_labeling_inside', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take(3, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlabelinginside(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Notes which summary of a variable the chart shows, unless one is noted; the values are those of
  !> the summary, such as a percentile's.
  subroutine set_summary_function(chart, variable, summary, first_value, second_value, stat, &
      errmsg)
    class(*), intent(in) :: chart, variable, summary, first_value, second_value
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_summary_function', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'variable', variable)
    call this%take(3, 'summary', summary)
    call this%take_real(1, 'first_value', first_value)
    call this%take_real(2, 'second_value', second_value)
    if (this%sound) this%result = cx_setsummaryfunction(this%i(1), this%i(2), this%i(3), &
      this%r(1), this%r(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Has the renderer compute a statistic for a node. handle: the new statistic.
  subroutine add_statistic(chart, parent, method, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, method
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_statistic', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'method', method)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addstatistic(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a parameter to a statistic, transform or guide. handle: the new parameter.
  subroutine add_param(chart, statistic, name, value_string, handle, stat, errmsg)
    class(*), intent(in) :: chart, statistic, name, value_string
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_param', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'statistic', statistic)
    call this%take_string(3, 'name', name)
    call this%take_string(4, 'value_string', value_string)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addparam(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Says whether labels of an element are shown that would cover others.
  subroutine set_display_overlapping_labels(chart, element, display, stat, errmsg)
    class(*), intent(in) :: chart, element, display
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_display_overlapping_labels', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take_logical(3, 'display', display)
    if (this%sound) this%result = cx_setdisplayoverlappinglabels(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says what happens to labels of an element that would cover others.
  subroutine set_label_collision_handling(chart, element, handling, stat, errmsg)
    class(*), intent(in) :: chart, element, handling
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_label_collision_handling', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take_string(3, 'handling', handling)
    if (this%sound) this%result = cx_setlabelcollisionhandling(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
