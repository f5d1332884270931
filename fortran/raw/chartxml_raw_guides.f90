! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Guides, fit lines and legends: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_guides
  use, intrinsic :: iso_c_binding, only: c_double, c_int64_t
  implicit none
  private
  public :: cx_addguide, cx_addxreferenceline, cx_addyreferenceline, cx_addyfunctionofx, &
    cx_addyofxlinear, cx_addyofxlogarithmic, cx_addyofxinverse, cx_addyofxquadratic, &
    cx_addyofxcubic, cx_addyofxcompound, cx_addyofxpower, cx_addyofxs, cx_addyofxgrowth, &
    cx_addyofxexponential, cx_addyofxlogistic, cx_addlegend, cx_addlegendtargetex, &
    cx_addlegendframe, cx_addlegendframeex

  interface

    !> Adds a guide to a frame. Returns the new guide. Reports a node that is no frame.
    integer(c_int64_t) function cx_addguide(chart, frame, type, suffix) &
        bind(C, name="cx_addguide_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, type, suffix
    end function

    !> Adds a line at a value of x to a frame. Returns the new guide. Reports a node that is no
    !> frame.
    integer(c_int64_t) function cx_addxreferenceline(chart, frame, value_string, guide_style) &
        bind(C, name="cx_addxreferenceline_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, value_string, guide_style
    end function

    !> Adds a line at a value of y to a frame. Returns the new guide. Reports a node that is no
    !> frame.
    integer(c_int64_t) function cx_addyreferenceline(chart, frame, value_string, guide_style) &
        bind(C, name="cx_addyreferenceline_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, value_string, guide_style
    end function

    !> Adds the curve of a function of x to a frame. Returns the new guide. Reports a node that is
    !> no frame.
    integer(c_int64_t) function cx_addyfunctionofx(chart, frame, function, guide_style) &
        bind(C, name="cx_addyfunctionofx_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, function, guide_style
    end function

    !> Adds a straight line to a frame and names it after its model. Returns the new guide, or -1
    !> for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxlinear(chart, frame, guide_style, intercept, slope, &
        date_scale) bind(C, name="cx_addyofxlinear_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: intercept, slope
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 * log(x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxlogarithmic(chart, frame, guide_style, b1, b2, &
        date_scale) bind(C, name="cx_addyofxlogarithmic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 / x to a frame and names it after its model. Returns the new guide, or
    !> -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxinverse(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxinverse_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 * x + b3 * x*x to a frame and names it after its model. Returns the
    !> new guide; infinite coefficients are not looked at. Reports a node that is no frame, and then
    !> also that there is no curve to name.
    integer(c_int64_t) function cx_addyofxquadratic(chart, frame, guide_style, b1, b2, b3, &
        date_scale) bind(C, name="cx_addyofxquadratic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2, b3
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 + b2 * x + b3 * x*x + b4 * x*x*x to a frame and names it after its model.
    !> Returns the new guide; infinite coefficients are not looked at. Reports a node that is no
    !> frame, and then also that there is no curve to name.
    integer(c_int64_t) function cx_addyofxcubic(chart, frame, guide_style, b1, b2, b3, b4, &
        date_scale) bind(C, name="cx_addyofxcubic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2, b3, b4
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 * b2**x to a frame and names it after its model. Returns the new guide, or
    !> -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxcompound(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxcompound_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 * x**b2 to a frame and names it after its model. Returns the new guide, or
    !> -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxpower(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxpower_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve exp(b1 + b2 / x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxs(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxs_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve exp(b1 + b2 * x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxgrowth(chart, frame, guide_style, b1, b2, date_scale) &
        bind(C, name="cx_addyofxgrowth_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve b1 * exp(b2 * x) to a frame and names it after its model. Returns the new
    !> guide, or -1 for an infinite coefficient, silently. Reports a node that is no frame.
    integer(c_int64_t) function cx_addyofxexponential(chart, frame, guide_style, b1, b2, &
        date_scale) bind(C, name="cx_addyofxexponential_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds the curve 1 / (b3 + b1 * b2**x) to a frame and names it after its model. Returns the new
    !> guide; infinite coefficients are not looked at. Reports a node that is no frame, and then
    !> also that there is no curve to name.
    integer(c_int64_t) function cx_addyofxlogistic(chart, frame, guide_style, b1, b2, b3, &
        date_scale) bind(C, name="cx_addyofxlogistic_")
      import
      integer(c_int64_t), intent(in) :: chart, frame, guide_style
      real(c_double), intent(in) :: b1, b2, b3
      integer(c_int64_t), intent(in) :: date_scale
    end function

    !> Adds a legend to a frame. Returns the new legend.
    integer(c_int64_t) function cx_addlegend(chart, parent, suffix) bind(C, name="cx_addlegend_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix
    end function

    !> Has a legend explain a styleBy of an element or guide. Returns the new legend target. Reports
    !> a node that is no legend.
    integer(c_int64_t) function cx_addlegendtargetex(chart, parent, target, style_by, suffix) &
        bind(C, name="cx_addlegendtargetex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, target, style_by, suffix
    end function

    !> Adds a frame with a legend that explains an element's or guide's aesthetic. Returns the new
    !> legend.
    integer(c_int64_t) function cx_addlegendframe(chart, parent, target, style_index, aesthetic, &
        ignored, style, legend) bind(C, name="cx_addlegendframe_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, target, style_index, aesthetic, ignored
      integer(c_int64_t), intent(inout) :: style, legend
    end function

    !> Adds a frame with a legend that explains a styleBy of an element or guide. Returns the new
    !> legend.
    integer(c_int64_t) function cx_addlegendframeex(chart, parent, target, style_index, &
        style_by_node, style, legend) bind(C, name="cx_addlegendframeex_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, target, style_index, style_by_node
      integer(c_int64_t), intent(inout) :: style, legend
    end function

  end interface

end module
