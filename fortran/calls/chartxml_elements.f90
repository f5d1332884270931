! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Elements, as Fortran has it.
module chartxml_elements
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_elements
  implicit none
  private
  public :: add_element, add_element_group, add_xy_element, add_splom_element, &
    add_splom_element_with_margins, set_element_name, set_element_dot, &
    set_element_position_modifier, add_binned_element

contains

  !> Adds an element to a frame or an element group. handle: the new element. Refuses any other
  !> parent.
  subroutine add_element(chart, parent, type, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, type
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_element', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'type', type)
    call this%take_string(4, 'suffix', suffix)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addelement(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a group for elements to a frame. handle: the new element group. Refuses a node that is no
  !> frame.
  subroutine add_element_group(chart, frame, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_element_group', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'suffix', suffix)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addelementgroup(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds an element with its x and y.
  subroutine add_xy_element(chart, parent, style_index, type, x, y, style_kind, element, stat, &
      errmsg)
    class(*), intent(in) :: chart, parent, style_index, type, x, y, style_kind
    class(*), intent(inout), optional :: element, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_xy_element', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'style_index', style_index)
    call this%take_string(4, 'type', type)
    call this%take(5, 'x', x)
    call this%take(6, 'y', y)
    call this%take_string(7, 'style_kind', style_kind)
    call this%take_output(1, 'element', element)
    if (this%sound) this%result = cx_addxyelementex(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%i(6), this%i(7), this%o(1))
    call this%give(1, element)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a matrix of scatterplots to a frame, every variable against every other, with margins of
  !> 15%. Refuses a node that is no variable.
  subroutine add_splom_element(chart, parent, variables, element, stat, errmsg)
    class(*), intent(in) :: chart, parent, variables(:)
    class(*), intent(inout), optional :: element, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_splom_element', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_list('variables', variables)
    call this%take_output(1, 'element', element)
    if (this%sound) this%result = cx_addsplomelement(this%i(1), this%i(2), this%list, &
      size(this%list, kind=c_int64_t), this%o(1))
    call this%give(1, element)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a matrix of scatterplots to a frame, every variable against every other, with margins and
  !> mappings. Refuses a node that is no variable.
  subroutine add_splom_element_with_margins(chart, parent, variables, element, x_upper_margin, &
      x_lower_margin, y_upper_margin, y_lower_margin, x_upper_mapping, x_lower_mapping, &
      y_upper_mapping, y_lower_mapping, stat, errmsg)
    class(*), intent(in) :: chart, parent, variables(:)
    class(*), intent(inout), optional :: element, stat
    class(*), intent(in), optional :: x_upper_margin, x_lower_margin, y_upper_margin, &
      y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, y_lower_mapping
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_splom_element_with_margins', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_list('variables', variables)
    call this%take_output(1, 'element', element)
    call this%take_string(3, 'x_upper_margin', x_upper_margin)
    call this%take_string(4, 'x_lower_margin', x_lower_margin)
    call this%take_string(5, 'y_upper_margin', y_upper_margin)
    call this%take_string(6, 'y_lower_margin', y_lower_margin)
    call this%take_string(7, 'x_upper_mapping', x_upper_mapping)
    call this%take_string(8, 'x_lower_mapping', x_lower_mapping)
    call this%take_string(9, 'y_upper_mapping', y_upper_mapping)
    call this%take_string(10, 'y_lower_mapping', y_lower_mapping)
    if (this%sound) this%result = cx_addsplomelementex(this%i(1), this%i(2), this%list, &
      size(this%list, kind=c_int64_t), this%o(1), this%i(3), this%i(4), this%i(5), this%i(6), &
      this%i(7), this%i(8), this%i(9), this%i(10))
    call this%give(1, element)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Names an element or a guide, as a legend shows it.
  subroutine set_element_name(chart, element, name, stat, errmsg)
    class(*), intent(in) :: chart, element, name
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_element_name', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take_string(3, 'name', name)
    if (this%sound) this%result = cx_setelementname(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says how the points of an element are stacked into dots.
  subroutine set_element_dot(chart, element, dot, stat, errmsg)
    class(*), intent(in) :: chart, element, dot
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_element_dot', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take_string(3, 'dot', dot)
    if (this%sound) this%result = cx_setelementdot(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Says how parts of an element at one place give way. Refuses a node that is no element.
  subroutine set_element_position_modifier(chart, element, modifier, stat, errmsg)
    class(*), intent(in) :: chart, element, modifier
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_element_position_modifier', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element', element)
    call this%take_string(3, 'modifier', modifier)
    if (this%sound) this%result = cx_setelementpositionmodifier(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds an element over hexagonal bins of x and y, each sized by the cases in it. handle: the new
  !> element. Refuses any parent but a frame or an element group; a node that is no variable.
  subroutine add_binned_element(chart, parent, type, x, y, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, type, x, y
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_binned_element', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'type', type)
    call this%take_string(4, 'suffix', suffix)
    call this%take(5, 'x', x)
    call this%take(6, 'y', y)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addbinnedelement(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%i(6))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

end module
