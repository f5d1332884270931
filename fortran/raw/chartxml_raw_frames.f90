! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Frames, labels and facets: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_frames
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  implicit none
  private
  public :: cx_addframe, cx_setframeclipping, cx_addlabel, cx_addframewithlabel, &
    cx_addsplitheaderex, cx_addfacetlabeling, cx_addfacetlabel, cx_setfacetlabelcellstyle, &
    cx_getfacetlabel, cx_setfacetlabellevel, cx_setfacetlabelgap, cx_setfacetlabelingcellaspect, &
    cx_addtablefacet, cx_addcoordinatefacet, cx_addnest, cx_addblend, cx_addcross, &
    cx_addfacetvariable, cx_addfacetstyle, cx_addcoordinatetransform, cx_addxyzwireframe, &
    cx_addxyzbackplanes

  interface

    !> Adds a frame to the document element (0) or to another frame. Returns the new frame. Reports
    !> any other parent.
    integer(c_int64_t) function cx_addframe(chart, parent, suffix) bind(C, name="cx_addframe_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix
    end function

    !> Says whether a frame clips its elements. Returns the frame.
    integer(c_int64_t) function cx_setframeclipping(chart, frame, clip) &
        bind(C, name="cx_setframeclipping_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, clip
    end function

    !> Gives a node its label, in place of one that it has. Returns the new label.
    integer(c_int64_t) function cx_addlabel(chart, parent, suffix, content) &
        bind(C, name="cx_addlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix, content
    end function

    !> Adds a frame with a label, such as a title (17), subtitle (16) or footnote (13). Returns the
    !> new frame.
    integer(c_int64_t) function cx_addframewithlabel(chart, parent, style_kind, style_index, &
        content) bind(C, name="cx_addframewithlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, style_kind, style_index, content
    end function

    !> Adds a frame with the text of cx_splitheader_ as a subtitle. Returns the new frame. Reports
    !> that there are no data, or no values of the split variables.
    integer(c_int64_t) function cx_addsplitheaderex(chart, parent, split_cells, ignored1) &
        bind(C, name="cx_addsplitheaderex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent
      type(*), intent(in) :: split_cells(*)
      integer(c_int64_t), intent(in) :: ignored1
    end function

    !> Gives a frame its facet labeling, at most one; one anywhere below the frame counts. Returns
    !> the frame's facet labeling, new or known. Reports a node that is no frame.
    integer(c_int64_t) function cx_addfacetlabeling(chart, frame) &
        bind(C, name="cx_addfacetlabeling_")
      import
      integer(c_int64_t), intent(in) :: chart, frame
    end function

    !> Adds the labels of one facet level. Returns the new facet label. Reports a node that is no
    !> facet labeling.
    integer(c_int64_t) function cx_addfacetlabel(chart, facet_labeling, suffix, level, reverse) &
        bind(C, name="cx_addfacetlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_labeling, suffix, level, reverse
    end function

    !> Gives the panels of a facet label a style. Returns the facet label. Reports a node that is no
    !> facet label.
    integer(c_int64_t) function cx_setfacetlabelcellstyle(chart, facet_label, suffix) &
        bind(C, name="cx_setfacetlabelcellstyle_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_label, suffix
    end function

    !> Finds the first facet label of a level. Returns the facet label, or -1 when there is none,
    !> silently. Reports a node that is no facet labeling.
    integer(c_int64_t) function cx_getfacetlabel(chart, facet_labeling, level) &
        bind(C, name="cx_getfacetlabel_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_labeling, level
    end function

    !> Moves a facet label to another level. Returns the facet label, or -1 for any other node,
    !> silently.
    integer(c_int64_t) function cx_setfacetlabellevel(chart, facet_label, level_text) &
        bind(C, name="cx_setfacetlabellevel_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_label, level_text
    end function

    !> Sets the gap between the panels of a facet label or facet variable. Returns the facet label
    !> or facet variable, or -1 for any other node, silently.
    integer(c_int64_t) function cx_setfacetlabelgap(chart, facet_label_or_variable, gap) &
        bind(C, name="cx_setfacetlabelgap_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_label_or_variable, gap
    end function

    !> Sets the shape of the panels. Returns the facet labeling. Reports a node that is no facet
    !> labeling.
    integer(c_int64_t) function cx_setfacetlabelingcellaspect(chart, facet_labeling, aspect) &
        bind(C, name="cx_setfacetlabelingcellaspect_")
      import
      integer(c_int64_t), intent(in) :: chart, facet_labeling
      real(c_double), intent(in) :: aspect
    end function

    !> Gives a frame its table of panels, at most one; one anywhere below the frame counts. Returns
    !> the frame's table facet, new or known. Reports a node that is no frame.
    integer(c_int64_t) function cx_addtablefacet(chart, frame) bind(C, name="cx_addtablefacet_")
      import
      integer(c_int64_t), intent(in) :: chart, frame
    end function

    !> Has a frame split into panels along its coordinates. Returns the new coordinate facet.
    !> Reports a node that is no frame.
    integer(c_int64_t) function cx_addcoordinatefacet(chart, frame) &
        bind(C, name="cx_addcoordinatefacet_")
      import
      integer(c_int64_t), intent(in) :: chart, frame
    end function

    !> Adds panels within panels: the first part of a nest is the outer, the second the inner one,
    !> and there are no more. Returns the new nest. Reports a nest that has both parts.
    integer(c_int64_t) function cx_addnest(chart, facet) bind(C, name="cx_addnest_")
      import
      integer(c_int64_t), intent(in) :: chart, facet
    end function

    !> Adds panels beside panels. Returns the new blend. Reports a nest that has both parts.
    integer(c_int64_t) function cx_addblend(chart, facet) bind(C, name="cx_addblend_")
      import
      integer(c_int64_t), intent(in) :: chart, facet
    end function

    !> Adds panels by every combination. Returns the new cross. Reports a nest that has both parts.
    integer(c_int64_t) function cx_addcross(chart, facet) bind(C, name="cx_addcross_")
      import
      integer(c_int64_t), intent(in) :: chart, facet
    end function

    !> Splits by a variable, along a role. Returns the new facet variable. Reports a role outside 1
    !> to 7; a nest that has both parts.
    integer(c_int64_t) function cx_addfacetvariable(chart, facet, role, variable) &
        bind(C, name="cx_addfacetvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, facet, role, variable
    end function

    !> Gives an element or grid lines a style of their own in some panels. Returns the new facet
    !> style. Reports any other parent.
    integer(c_int64_t) function cx_addfacetstyle(chart, element_or_grid_lines, when, suffix) &
        bind(C, name="CX_AddFacetStyle")
      import
      integer(c_int64_t), intent(in) :: chart, element_or_grid_lines, when, suffix
    end function

    !> Changes the coordinates of a frame, such as 30 "transpose", 31 "polar" or 104 "rectangular".
    !> Returns the new coordinate transform.
    integer(c_int64_t) function cx_addcoordinatetransform(chart, frame, method) &
        bind(C, name="cx_addcoordinatetransform_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, method
    end function

    !> Shows a frame as a space of three dimensions, with a wire frame and three planes. Returns the
    !> parent. Reports a node that is no frame.
    integer(c_int64_t) function cx_addxyzwireframe(chart, parent) &
        bind(C, name="cx_addxyzwireframe_")
      import
      integer(c_int64_t), intent(in) :: chart, parent
    end function

    !> Shows a frame as a space of three dimensions, with three planes. Returns the parent. Reports
    !> a node that is no frame.
    integer(c_int64_t) function cx_addxyzbackplanes(chart, parent) &
        bind(C, name="cx_addxyzbackplanes_")
      import
      integer(c_int64_t), intent(in) :: chart, parent
    end function

  end interface

end module
