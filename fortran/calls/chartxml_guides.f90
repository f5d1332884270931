! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Guides, fit lines and legends, as Fortran has it.
module chartxml_guides
  use, intrinsic :: iso_c_binding, only: c_int64_t
  use chartxml_entry_call, only: entry_call
  use chartxml_raw_guides
  implicit none
  private
  public :: add_guide, add_x_reference_line, add_y_reference_line, add_y_function_of_x, &
    add_linear_fit, add_logarithmic_fit, add_inverse_fit, add_quadratic_fit, add_cubic_fit, &
    add_compound_fit, add_power_fit, add_s_fit, add_growth_fit, add_exponential_fit, &
    add_logistic_fit, add_legend, add_legend_target_ex, add_legend_frame, add_legend_frame_of

contains

  !> Adds a guide to a frame. handle: the new guide. Refuses a node that is no frame.
  subroutine add_guide(chart, frame, type, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, type
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_guide', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'type', type)
    call this%take_string(4, 'suffix', suffix)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addguide(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a line at a value of x to a frame. handle: the new guide. Refuses a node that is no frame.
  subroutine add_x_reference_line(chart, frame, value_string, guide_style, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, value_string
    class(*), intent(in), optional :: guide_style
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_x_reference_line', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'value_string', value_string)
    call this%take(4, 'guide_style', guide_style)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addxreferenceline(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a line at a value of y to a frame. handle: the new guide. Refuses a node that is no frame.
  subroutine add_y_reference_line(chart, frame, value_string, guide_style, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, value_string
    class(*), intent(in), optional :: guide_style
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_y_reference_line', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'value_string', value_string)
    call this%take(4, 'guide_style', guide_style)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyreferenceline(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve of a function of x to a frame. handle: the new guide. Refuses a node that is no
  !> frame.
  subroutine add_y_function_of_x(chart, frame, function, guide_style, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, function
    class(*), intent(in), optional :: guide_style
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_y_function_of_x', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take_string(3, 'function', function)
    call this%take(4, 'guide_style', guide_style)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyfunctionofx(this%i(1), this%i(2), this%i(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a straight line to a frame and names it after its model. handle: the new guide, or -1 for
  !> an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_linear_fit(chart, frame, intercept, slope, guide_style, date_scale, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, intercept, slope
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_linear_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'intercept', intercept)
    call this%take_real(2, 'slope', slope)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxlinear(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 + b2 * log(x) to a frame and names it after its model. handle: the new guide,
  !> or -1 for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_logarithmic_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_logarithmic_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxlogarithmic(this%i(1), this%i(2), this%i(3), &
      this%r(1), this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 + b2 / x to a frame and names it after its model. handle: the new guide, or
  !> -1 for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_inverse_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_inverse_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxinverse(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 + b2 * x + b3 * x*x to a frame and names it after its model. handle: the new
  !> guide; infinite coefficients are not looked at. Refuses a node that is no frame, and then also
  !> that there is no curve to name.
  subroutine add_quadratic_fit(chart, frame, b1, b2, b3, guide_style, date_scale, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, b1, b2, b3
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_quadratic_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_real(3, 'b3', b3)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxquadratic(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%r(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 + b2 * x + b3 * x*x + b4 * x*x*x to a frame and names it after its model.
  !> handle: the new guide; infinite coefficients are not looked at. Refuses a node that is no
  !> frame, and then also that there is no curve to name.
  subroutine add_cubic_fit(chart, frame, b1, b2, b3, b4, guide_style, date_scale, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, b1, b2, b3, b4
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_cubic_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_real(3, 'b3', b3)
    call this%take_real(4, 'b4', b4)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxcubic(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%r(3), this%r(4), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 * b2**x to a frame and names it after its model. handle: the new guide, or -1
  !> for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_compound_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_compound_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxcompound(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 * x**b2 to a frame and names it after its model. handle: the new guide, or -1
  !> for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_power_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_power_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxpower(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve exp(b1 + b2 / x) to a frame and names it after its model. handle: the new guide,
  !> or -1 for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_s_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_s_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxs(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve exp(b1 + b2 * x) to a frame and names it after its model. handle: the new guide,
  !> or -1 for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_growth_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_growth_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxgrowth(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve b1 * exp(b2 * x) to a frame and names it after its model. handle: the new guide,
  !> or -1 for an infinite coefficient, silently. Refuses a node that is no frame.
  subroutine add_exponential_fit(chart, frame, b1, b2, guide_style, date_scale, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, b1, b2
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_exponential_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxexponential(this%i(1), this%i(2), this%i(3), &
      this%r(1), this%r(2), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds the curve 1 / (b3 + b1 * b2**x) to a frame and names it after its model. handle: the new
  !> guide; infinite coefficients are not looked at. Refuses a node that is no frame, and then also
  !> that there is no curve to name.
  subroutine add_logistic_fit(chart, frame, b1, b2, b3, guide_style, date_scale, handle, stat, &
      errmsg)
    class(*), intent(in) :: chart, frame, b1, b2, b3
    class(*), intent(in), optional :: guide_style, date_scale
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_logistic_fit', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'frame', frame)
    call this%take(3, 'guide_style', guide_style)
    call this%take_real(1, 'b1', b1)
    call this%take_real(2, 'b2', b2)
    call this%take_real(3, 'b3', b3)
    call this%take_logical(4, 'date_scale', date_scale)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addyofxlogistic(this%i(1), this%i(2), this%i(3), this%r(1), &
      this%r(2), this%r(3), this%i(4))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a legend to a frame. handle: the new legend.
  subroutine add_legend(chart, parent, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_legend', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take_string(3, 'suffix', suffix)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlegend(this%i(1), this%i(2), this%i(3))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Has a legend explain a styleBy of an element or guide. handle: the new legend target. Refuses a
  !> node that is no legend.
  subroutine add_legend_target_ex(chart, parent, target, style_by, suffix, handle, stat, errmsg)
    class(*), intent(in) :: chart, parent, target, style_by
    class(*), intent(in), optional :: suffix
    class(*), intent(inout), optional :: handle, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_legend_target_ex', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'target', target)
    call this%take(4, 'style_by', style_by)
    call this%take_string(5, 'suffix', suffix)
    call this%take_output(0, 'handle', handle)
    if (this%sound) this%result = cx_addlegendtargetex(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5))
    call this%finish(made=handle, stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a frame with a legend that explains an element's or guide's aesthetic.
  subroutine add_legend_frame(chart, parent, target, style_index, aesthetic, style, legend, stat, &
      errmsg)
    class(*), intent(in) :: chart, parent, target, style_index
    class(*), intent(in), optional :: aesthetic
    class(*), intent(inout), optional :: style, legend, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_legend_frame', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'target', target)
    call this%take(4, 'style_index', style_index)
    call this%take_string(5, 'aesthetic', aesthetic)
    call this%take_output(1, 'style', style)
    call this%take_output(2, 'legend', legend)
    if (this%sound) this%result = cx_addlegendframe(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), 0_c_int64_t, this%o(1), this%o(2))
    call this%give(1, style)
    call this%give(2, legend)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

  !> Adds a frame with a legend that explains a styleBy of an element or guide.
  subroutine add_legend_frame_of(chart, parent, target, style_index, style_by_node, style, legend, &
      stat, errmsg)
    class(*), intent(in) :: chart, parent, target, style_index
    class(*), intent(in), optional :: style_by_node
    class(*), intent(inout), optional :: style, legend, stat
    character(*), intent(inout), optional :: errmsg
    type(entry_call) :: this

    call this%start('add_legend_frame_of', stat)
    call this%take(1, 'chart', chart)
    call this%take(2, 'parent', parent)
    call this%take(3, 'target', target)
    call this%take(4, 'style_index', style_index)
    call this%take(5, 'style_by_node', style_by_node)
    call this%take_output(1, 'style', style)
    call this%take_output(2, 'legend', legend)
    if (this%sound) this%result = cx_addlegendframeex(this%i(1), this%i(2), this%i(3), this%i(4), &
      this%i(5), this%o(1), this%o(2))
    call this%give(1, style)
    call this%give(2, legend)
    call this%finish(stat=stat, errmsg=errmsg)
  end subroutine

end module
