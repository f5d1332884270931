! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Frames, labels and facets, as Fortran has it.
module chartxml_frames
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_frames
  implicit none
  private
  public :: add_frame, set_frame_clipping, add_label, add_frame_with_label, add_split_header, &
    add_facet_labeling, add_facet_label, set_facet_label_cell_style, get_facet_label, &
    set_facet_label_level, set_facet_label_gap, set_facet_labeling_cell_aspect, add_table_facet, &
    add_coordinate_facet, add_nest, add_blend, add_cross, add_facet_variable, add_facet_style, &
    add_coordinate_transform, add_xyz_wireframe, add_xyz_backplanes

contains

  !> Adds a frame to the document element (0) or to another frame. handle: the new frame. Refuses
  !> any other parent.
  subroutine add_frame(chart, parent, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_frame', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'suffix', suffix)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addframe(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Says whether a frame clips its elements.
  subroutine set_frame_clipping(chart, frame, clip, stat, errmsg)
    class(*), intent(in) :: chart, frame, clip
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_frame_clipping', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_logical(3, 'clip', clip)
    if (this%sound) this%result = cx_setframeclipping(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a node its label, in place of one that it has. handle: the new label.
  subroutine add_label(chart, parent, suffix, content, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: suffix, content
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_label', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'suffix', suffix)
    call this%take_string(4, 'content', content)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlabel(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a frame with a label, such as a title (17), subtitle (16) or footnote (13). handle: the
  !> new frame.
  subroutine add_frame_with_label(chart, parent, style_kind, style_index, content, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, parent, style_kind, style_index
    class(*), intent(in), optional :: content
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_frame_with_label', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'style_kind', style_kind)
    call this%take(4, 'style_index', style_index)
    call this%take_string(5, 'content', content)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addframewithlabel(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a frame with the text of cx_splitheader_ as a subtitle. handle: the new frame. Refuses
  !> that there are no data, or no values of the split variables.
  subroutine add_split_header(chart, parent, split_cells, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    real(c_double), intent(in) :: split_cells(:)
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_split_header', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addsplitheaderex(this%i(1), this%i(2), split_cells, &
      0_c_int64_t)
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a frame its facet labeling, at most one; one anywhere below the frame counts. handle: the
  !> frame's facet labeling, new or known. Refuses a node that is no frame.
  subroutine add_facet_labeling(chart, frame, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_facet_labeling', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addfacetlabeling(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the labels of one facet level. handle: the new facet label. Refuses a node that is no
  !> facet labeling.
  subroutine add_facet_label(chart, facet_labeling, level, suffix, reverse, handle, stat, errmsg)
    class(*), intent(in) :: chart, facet_labeling, level
    class(*), intent(in), optional :: suffix, reverse
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_facet_label', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet_labeling', facet_labeling)
    call this%take_string(3, 'suffix', suffix)
    call this%take(4, 'level', level)
    call this%take_logical(5, 'reverse', reverse)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addfacetlabel(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives the panels of a facet label a style. Refuses a node that is no facet label.
  subroutine set_facet_label_cell_style(chart, facet_label, suffix, stat, errmsg)
    class(*), intent(in) :: chart, facet_label
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_facet_label_cell_style', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet_label', facet_label)
    call this%take_string(3, 'suffix', suffix)
    if (this%sound) this%result = cx_setfacetlabelcellstyle(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Finds the first facet label of a level. Refuses a node that is no facet labeling.
  function get_facet_label(chart, facet_labeling, level, stat, errmsg) result(answer)
    class(*), intent(in) :: chart, facet_labeling, level
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    integer :: answer
    type(entry_call) :: this

    call this%start('get_facet_label', stat, answers=.true.)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet_labeling', facet_labeling)
    call this%take(3, 'level', level)
    if (this%sound) this%result = cx_getfacetlabel(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
    answer = int(this%result)
  end function

  !> Moves a facet label to another level.
  subroutine set_facet_label_level(chart, facet_label, level_text, stat, errmsg)
    class(*), intent(in) :: chart, facet_label, level_text
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_facet_label_level', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet_label', facet_label)
    call this%take_string(3, 'level_text', level_text)
    if (this%sound) this%result = cx_setfacetlabellevel(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the gap between the panels of a facet label or facet variable.
  subroutine set_facet_label_gap(chart, facet_label_or_variable, gap, stat, errmsg)
    class(*), intent(in) :: chart, facet_label_or_variable, gap
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_facet_label_gap', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet_label_or_variable', facet_label_or_variable)
    call this%take_string(3, 'gap', gap)
    if (this%sound) this%result = cx_setfacetlabelgap(this%i(1), this%i(2), this%i(3))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Sets the shape of the panels. Refuses a node that is no facet labeling.
  subroutine set_facet_labeling_cell_aspect(chart, facet_labeling, aspect, stat, errmsg)
    class(*), intent(in) :: chart, facet_labeling, aspect
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('set_facet_labeling_cell_aspect', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet_labeling', facet_labeling)
    call this%take_real(1, 'aspect', aspect)
    if (this%sound) this%result = cx_setfacetlabelingcellaspect(this%i(1), this%i(2), this%r(1))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives a frame its table of panels, at most one; one anywhere below the frame counts. handle:
  !> the frame's table facet, new or known. Refuses a node that is no frame.
  subroutine add_table_facet(chart, frame, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_table_facet', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addtablefacet(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Has a frame split into panels along its coordinates. handle: the new coordinate facet. Refuses
  !> a node that is no frame.
  subroutine add_coordinate_facet(chart, frame, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_coordinate_facet', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addcoordinatefacet(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds panels within panels: the first part of a nest is the outer, the second the inner one, and
  !> there are no more. handle: the new nest. Refuses a nest that has both parts.
  subroutine add_nest(chart, facet, handle, stat, errmsg)
    class(*), intent(in) :: chart, facet
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_nest', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet', facet)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addnest(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds panels beside panels. handle: the new blend. Refuses a nest that has both parts.
  subroutine add_blend(chart, facet, handle, stat, errmsg)
    class(*), intent(in) :: chart, facet
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_blend', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet', facet)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addblend(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds panels by every combination. handle: the new cross. Refuses a nest that has both parts.
  subroutine add_cross(chart, facet, handle, stat, errmsg)
    class(*), intent(in) :: chart, facet
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_cross', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet', facet)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addcross(this%i(1), this%i(2))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Splits by a variable, along a role. handle: the new facet variable. Refuses a role outside 1 to
  !> 7; a nest that has both parts.
  subroutine add_facet_variable(chart, facet, role, variable, handle, stat, errmsg)
    class(*), intent(in) :: chart, facet, role, variable
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_facet_variable', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'facet', facet)
    call this%take(3, 'role', role)
    call this%take(4, 'variable', variable)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addfacetvariable(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Gives an element or grid lines a style of their own in some panels. Refuses any other parent.
  subroutine add_facet_style(chart, element_or_grid_lines, when, suffix, stat, errmsg)
    class(*), intent(in) :: chart, element_or_grid_lines, when
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_facet_style', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'element_or_grid_lines', element_or_grid_lines)
    call this%take_string(3, 'when', when)
    call this%take_string(4, 'suffix', suffix)
    if (this%sound) this%result = cx_addfacetstyle(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Changes the coordinates of a frame, such as 30 "transpose", 31 "polar" or 104 "rectangular".
  !> handle: the new coordinate transform.
  subroutine add_coordinate_transform(chart, frame, method, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, method
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_coordinate_transform', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'method', method)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addcoordinatetransform(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Shows a frame as a space of three dimensions, with a wire frame and three planes. Refuses a
  !> node that is no frame.
  subroutine add_xyz_wireframe(chart, parent, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_xyz_wireframe', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    if (this%sound) this%result = cx_addxyzwireframe(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Shows a frame as a space of three dimensions, with three planes. Refuses a node that is no
  !> frame.
  subroutine add_xyz_backplanes(chart, parent, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(inout), optional :: stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_xyz_backplanes', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    if (this%sound) this%result = cx_addxyzbackplanes(this%i(1), this%i(2))
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
