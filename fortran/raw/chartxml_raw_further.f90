! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Beyond the procedures' own: nodes and texts: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_further
  use, intrinsic :: iso_c_binding, only: c_char, c_double, c_int64_t
  implicit none
  private
  public :: chartxml_addr, chartxml_addphi, chartxml_addsize, chartxml_setsizelow, &
    chartxml_setsizehigh, chartxml_addstack, chartxml_addtransform, chartxml_addreferenceline, &
    chartxml_addyofxwithab, chartxml_addlegendtarget, chartxml_setfacetsdifferentscale, &
    chartxml_copyvariable, chartxml_getvariableindex, chartxml_setprocedure, &
    chartxml_setglobalstringtable, chartxml_resetstrings, chartxml_gettext, chartxml_getxml

  interface

    !> Adds the distance from the centre to an element or position. Returns the new r. Reports any
    !> other parent.
    integer(c_int64_t) function chartxml_addr(chart, parent, variable) &
        bind(C, name="chartxml_addr_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Adds the second angle to an element or position. Returns the new phi. Reports any other
    !> parent.
    integer(c_int64_t) function chartxml_addphi(chart, parent, variable) &
        bind(C, name="chartxml_addphi_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Sizes an element or its labels by a variable. Returns the new size. Reports any other parent.
    integer(c_int64_t) function chartxml_addsize(chart, element_or_labeling, variable) &
        bind(C, name="chartxml_addsize_")
      import
      integer(c_int64_t), intent(in) :: chart, element_or_labeling, variable
    end function

    !> Sets the size of the lowest value. Returns 0, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_setsizelow(chart, size, low) &
        bind(C, name="chartxml_setsizelow_")
      import
      integer(c_int64_t), intent(in) :: chart, size, low
    end function

    !> Sets the size of the highest value. Returns 0, or -1 for any other node, silently.
    integer(c_int64_t) function chartxml_setsizehigh(chart, size, high) &
        bind(C, name="chartxml_setsizehigh_")
      import
      integer(c_int64_t), intent(in) :: chart, size, high
    end function

    !> Stacks, or does not stack, the element of a position. Returns the position.
    integer(c_int64_t) function chartxml_addstack(chart, position_node, stack) &
        bind(C, name="chartxml_addstack_")
      import
      integer(c_int64_t), intent(in) :: chart, position_node, stack
    end function

    !> Adds a transform to an axis or another node. Returns the new transform.
    integer(c_int64_t) function chartxml_addtransform(chart, node, method) &
        bind(C, name="chartxml_addtransform_")
      import
      integer(c_int64_t), intent(in) :: chart, node, method
    end function

    !> Adds a line at a value of x or y to a frame. Returns the new guide. Reports a node that is no
    !> frame.
    integer(c_int64_t) function chartxml_addreferenceline(chart, frame, line_role, value_string, &
        guide_style) bind(C, name="chartxml_addreferenceline_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, line_role, value_string, guide_style
    end function

    !> Fills an open composite, which is a formula in x with "^1" and "^2", and adds its curve to a
    !> frame. Returns the new guide, or -1 for an infinite coefficient, silently. Reports a node
    !> that is no frame.
    integer(c_int64_t) function chartxml_addyofxwithab(chart, frame, composite, guide_style, b1, &
        b2) bind(C, name="chartxml_addyofxwithab_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, composite, guide_style
      real(c_double), intent(in) :: b1, b2
    end function

    !> Has a legend explain an element or guide. Returns the new legend target. Reports a node that
    !> is no legend.
    integer(c_int64_t) function chartxml_addlegendtarget(chart, legend_node, target, suffix, &
        aesthetic) bind(C, name="chartxml_addlegendtarget_")
      import
      integer(c_int64_t), intent(in) :: chart, legend_node, target, suffix, aesthetic
    end function

    !> Gives each panel a scale of its own. Returns the dimension.
    integer(c_int64_t) function chartxml_setfacetsdifferentscale(chart, dimension) &
        bind(C, name="chartxml_setfacetsdifferentscale_")
      import
      integer(c_int64_t), intent(in) :: chart, dimension
    end function

    !> Declares a variable once more. Returns the new variable.
    integer(c_int64_t) function chartxml_copyvariable(chart, variable) &
        bind(C, name="chartxml_copyvariable_")
      import
      integer(c_int64_t), intent(in) :: chart, variable
    end function

    !> Tells the column of a variable of the procedure. Returns the column, from 0. Reports a number
    !> that no variable has.
    integer(c_int64_t) function chartxml_getvariableindex(variable_number) &
        bind(C, name="chartxml_getvariableindex_")
      import
      integer(c_int64_t), intent(in) :: variable_number
    end function

    !> Changes the procedure's name: the chart's, unless its handle is -1, and the string table that
    !> goes first. Returns 0, or 1 when the procedure has no string table of its own.
    integer(c_int64_t) function chartxml_setprocedure(chart, procedure_name, &
        procedure_name_length) bind(C, name="chartxml_setprocedure_")
      import
      integer(c_int64_t), intent(in) :: chart
      character(kind=c_char), intent(in) :: procedure_name(*)
      integer(c_int64_t), intent(in) :: procedure_name_length
    end function

    !> Names the folder of the string tables that every procedure shares. Returns 0.
    integer(c_int64_t) function chartxml_setglobalstringtable(path, path_length) &
        bind(C, name="chartxml_setglobalstringtable_")
      import
      character(kind=c_char), intent(in) :: path(*)
      integer(c_int64_t), intent(in) :: path_length
    end function

    !> Forgets every text but the predefined ones; string handles start again. Returns 0.
    integer(c_int64_t) function chartxml_resetstrings() bind(C, name="chartxml_resetstrings_")
      import
    end function

    !> Gives the text behind a string handle in UTF-8, as far as there is room. Returns the text's
    !> bytes, however much room there is.
    integer(c_int64_t) function chartxml_gettext(string, buffer, buffer_capacity) &
        bind(C, name="chartxml_gettext_")
      import
      integer(c_int64_t), intent(in) :: string
      character(kind=c_char), intent(inout) :: buffer(*)
      integer(c_int64_t), intent(in) :: buffer_capacity
    end function

    !> Gives the chart's document as it is by now, as far as there is room. Returns the document's
    !> bytes, however much room there is.
    integer(c_int64_t) function chartxml_getxml(chart, buffer, buffer_capacity) &
        bind(C, name="chartxml_getxml_")
      import
      integer(c_int64_t), intent(in) :: chart
      character(kind=c_char), intent(inout) :: buffer(*)
      integer(c_int64_t), intent(in) :: buffer_capacity
    end function

  end interface

end module
