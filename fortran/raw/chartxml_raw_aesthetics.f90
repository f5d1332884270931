! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Aesthetics and statistics: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_aesthetics
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  implicit none
  private
  public :: cx_addposition, cx_addx, cx_addy, cx_addz, cx_addtheta, cx_addcolor, cx_addstyleby, &
    cx_addstylebycolor, cx_addstylebypattern, cx_addstylebycolorandpattern, cx_addsplit, &
    cx_addlabeling, cx_addlabelingsuffix, cx_addlabelinginside, cx_setsummaryfunction, &
    cx_addstatistic, cx_addparam, cx_setdisplayoverlappinglabels, cx_setlabelcollisionhandling

  interface

    !> Gives an element a position of its own, which takes x, y and a statistic. Returns the new
    !> position. Reports a node that is no element.
    integer(c_int64_t) function cx_addposition(chart, element) bind(C, name="cx_addposition_")
      import
      integer(c_int64_t), intent(in) :: chart, element
    end function

    !> Puts a variable at x of an element or position. Returns the new x. Reports any other parent;
    !> a node that is no variable.
    integer(c_int64_t) function cx_addx(chart, parent, variable) bind(C, name="cx_addx_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Puts a variable at y of an element or position. Returns the new y. Reports any other parent;
    !> a node that is no variable.
    integer(c_int64_t) function cx_addy(chart, parent, variable) bind(C, name="cx_addy_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Puts a variable at z of an element or position. Returns the new z. Reports any other parent;
    !> a node that is no variable.
    integer(c_int64_t) function cx_addz(chart, parent, variable) bind(C, name="cx_addz_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Puts a variable at the angle of an element or position. Returns the new theta. Reports any
    !> other parent; a node that is no variable.
    integer(c_int64_t) function cx_addtheta(chart, parent, variable) bind(C, name="cx_addtheta_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, variable
    end function

    !> Colors an element by a variable. Returns the new color. Reports a node that is no element.
    integer(c_int64_t) function cx_addcolor(chart, element, variable) bind(C, name="cx_addcolor_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, in the styles of the default cycle; points become hollow.
    !> Returns the new styleBy. Reports a node that is no element.
    integer(c_int64_t) function cx_addstyleby(chart, element, variable) &
        bind(C, name="cx_addstyleby_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, one color a group. Returns the new styleBy. Reports a node
    !> that is no element.
    integer(c_int64_t) function cx_addstylebycolor(chart, element, variable) &
        bind(C, name="cx_addstylebycolor_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, one pattern a group. Returns the new styleBy. Reports a node
    !> that is no element.
    integer(c_int64_t) function cx_addstylebypattern(chart, element, variable) &
        bind(C, name="cx_addstylebypattern_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Groups an element by a variable, one color and pattern a group. Returns the new styleBy.
    !> Reports a node that is no element.
    integer(c_int64_t) function cx_addstylebycolorandpattern(chart, element, variable) &
        bind(C, name="cx_addstylebycolorandpattern_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Draws an element once for each category of a variable. Returns the new split. Reports a node
    !> that is no element.
    integer(c_int64_t) function cx_addsplit(chart, element, variable) bind(C, name="cx_addsplit_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Labels the parts of an element with the values of a variable. Returns the new labeling.
    !> Reports a node that is no element.
    integer(c_int64_t) function cx_addlabeling(chart, element, variable) &
        bind(C, name="cx_addlabeling_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> The same with a style of its own. Returns the new labeling. Reports a node that is no
    !> element.
    integer(c_int64_t) function cx_addlabelingsuffix(chart, element, variable, label_style) &
        bind(C, name="cx_addlabelingsuffix_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable, label_style
    end function

    !> The same with the style of labels inside. Returns the new labeling. Reports a node that is no
    !> element.
    integer(c_int64_t) function cx_addlabelinginside(chart, element, variable) &
        bind(C, name="cx_addlabelinginside_")
      import
      integer(c_int64_t), intent(in) :: chart, element, variable
    end function

    !> Notes which summary of a variable the chart shows, unless one is noted; the values are those
    !> of the summary, such as a percentile's. Returns the code, or -1 for a code that is no
    !> summary, silently.
    integer(c_int64_t) function cx_setsummaryfunction(chart, variable, summary, first_value, &
        second_value) bind(C, name="cx_setsummaryfunction_")
      import
      integer(c_int64_t), intent(in) :: chart, variable, summary
      real(c_double), intent(in) :: first_value, second_value
    end function

    !> Has the renderer compute a statistic for a node. Returns the new statistic.
    integer(c_int64_t) function cx_addstatistic(chart, parent, method) &
        bind(C, name="cx_addstatistic_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, method
    end function

    !> Adds a parameter to a statistic, transform or guide. Returns the new parameter.
    integer(c_int64_t) function cx_addparam(chart, statistic, name, value_string) &
        bind(C, name="cx_addparam_")
      import
      integer(c_int64_t), intent(in) :: chart, statistic, name, value_string
    end function

    !> Says whether labels of an element are shown that would cover others. Returns the element.
    integer(c_int64_t) function cx_setdisplayoverlappinglabels(chart, element, display) &
        bind(C, name="cx_setdisplayoverlappinglabels_")
      import
      integer(c_int64_t), intent(in) :: chart, element, display
    end function

    !> Says what happens to labels of an element that would cover others. Returns the element.
    integer(c_int64_t) function cx_setlabelcollisionhandling(chart, element, handling) &
        bind(C, name="cx_setlabelcollisionhandling_")
      import
      integer(c_int64_t), intent(in) :: chart, element, handling
    end function

  end interface

end module
