! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Elements: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_elements
  use, intrinsic :: iso_c_binding, only: c_int64_t
  implicit none
  private
  public :: cx_addelement, cx_addelementgroup, cx_addxyelementex, cx_addsplomelement, &
    cx_addsplomelementex, cx_setelementname, cx_setelementdot, cx_setelementpositionmodifier, &
    cx_addbinnedelement

  interface

    !> Adds an element to a frame or an element group. Returns the new element. Reports any other
    !> parent.
    integer(c_int64_t) function cx_addelement(chart, parent, type, suffix) &
        bind(C, name="cx_addelement_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, type, suffix
    end function

    !> Adds a group for elements to a frame. Returns the new element group. Reports a node that is
    !> no frame.
    integer(c_int64_t) function cx_addelementgroup(chart, frame, suffix) &
        bind(C, name="cx_addelementgroup_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, suffix
    end function

    !> Adds an element with its x and y. Returns the new element.
    integer(c_int64_t) function cx_addxyelementex(chart, parent, style_index, type, x, y, &
        style_kind, element) bind(C, name="cx_addxyelementex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, style_index, type, x, y, style_kind
      integer(c_int64_t), intent(inout) :: element
    end function

    !> Adds a matrix of scatterplots to a frame, every variable against every other, with margins of
    !> 15%. Returns the new element. Reports a node that is no variable.
    integer(c_int64_t) function cx_addsplomelement(chart, parent, variables, variable_count, &
        element) bind(C, name="cx_addsplomelement_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variables(*), variable_count
      integer(c_int64_t), intent(inout) :: element
    end function

    !> Adds a matrix of scatterplots to a frame, every variable against every other, with margins
    !> and mappings. Returns the new element. Reports a node that is no variable.
    integer(c_int64_t) function cx_addsplomelementex(chart, parent, variables, variable_count, &
        element, x_upper_margin, x_lower_margin, y_upper_margin, y_lower_margin, x_upper_mapping, &
        x_lower_mapping, y_upper_mapping, y_lower_mapping) bind(C, name="cx_addsplomelementex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variables(*), variable_count
      integer(c_int64_t), intent(inout) :: element
      integer(c_int64_t), intent(in) :: x_upper_margin, x_lower_margin, y_upper_margin, &
        y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, y_lower_mapping
    end function

    !> Names an element or a guide, as a legend shows it. Returns the element or guide, or -1 for
    !> any other node, silently.
    integer(c_int64_t) function cx_setelementname(chart, element, name) &
        bind(C, name="cx_setelementname_")
      import
      integer(c_int64_t), intent(in) :: chart, element, name
    end function

    !> Says how the points of an element are stacked into dots. Returns the element, or -1 for any
    !> other node, silently.
    integer(c_int64_t) function cx_setelementdot(chart, element, dot) &
        bind(C, name="cx_setelementdot_")
      import
      integer(c_int64_t), intent(in) :: chart, element, dot
    end function

    !> Says how parts of an element at one place give way. Returns the element. Reports a node that
    !> is no element.
    integer(c_int64_t) function cx_setelementpositionmodifier(chart, element, modifier) &
        bind(C, name="cx_setelementpositionmodifier_")
      import
      integer(c_int64_t), intent(in) :: chart, element, modifier
    end function

    !> Adds an element over hexagonal bins of x and y, each sized by the cases in it. Returns the
    !> new element. Reports any parent but a frame or an element group; a node that is no variable.
    integer(c_int64_t) function cx_addbinnedelement(chart, parent, type, suffix, x, y) &
        bind(C, name="cx_addbinnedelement_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, type, suffix, x, y
    end function

  end interface

end module
