! Made from backend/chartxml/entrypoints.json by scripts/generate-entry-points.mjs: change the list,
! not this file.
!
! Axes: the entry points as the library has them. Every integer is of kind
! c_int64_t, a logical is one, and a text goes with its length in bytes.
module chartxml_raw_axes
  use, intrinsic :: iso_c_binding, only: c_int64_t
  implicit none
  private
  public :: cx_addaxis, cx_addmajorticks, cx_addminorticks, cx_setaxispercent, cx_setlogunsafe, &
    cx_adddimensionaxis, cx_addxydimension, cx_addxydimensionwithaxis, &
    cx_addxydimaxiswithsameratio

  interface

    !> Adds an axis to a dimension. Returns the new axis.
    integer(c_int64_t) function cx_addaxis(chart, parent, suffix, opposite) &
        bind(C, name="cx_addaxis_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, suffix, opposite
    end function

    !> Adds the labelled ticks to an axis. Returns the new ticks. Reports that a style is taken,
    !> beside other ticks of the axis.
    integer(c_int64_t) function cx_addmajorticks(chart, parent, position, grid_lines, length, &
        label_angle, stagger, delta) bind(C, name="cx_addmajorticks_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, position, grid_lines, length, label_angle, &
        stagger, delta
    end function

    !> Adds the ticks between the major ones to an axis. Returns the new ticks. Reports that the
    !> mark style is taken, beside major ticks.
    integer(c_int64_t) function cx_addminorticks(chart, parent, position, grid_lines, length, &
        tick_count) bind(C, name="cx_addminorticks_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, position, grid_lines, length, tick_count
    end function

    !> Shows an axis in percent. Returns the node, also for a bad chart.
    integer(c_int64_t) function cx_setaxispercent(chart, node, format_parent) &
        bind(C, name="cx_setaxispercent_")
      import
      integer(c_int64_t), intent(in) :: chart, node, format_parent
    end function

    !> Turns off the "safe" parameter of the y scale. Returns -1 in every case.
    integer(c_int64_t) function cx_setlogunsafe(chart) bind(C, name="cx_setlogunsafe_")
      import
      integer(c_int64_t), intent(in) :: chart
    end function

    !> Gives a frame a dimension with axis and ticks. Returns the dimension, or -1 for an axis role
    !> outside 1 to 3, silently.
    integer(c_int64_t) function cx_adddimensionaxis(chart, parent, axis_role, domain, opposite, &
        style, axis, upper_margin, lower_margin, upper_mapping, lower_mapping) &
        bind(C, name="cx_adddimensionaxis_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, axis_role, domain, opposite
      integer(c_int64_t), intent(inout) :: style, axis
      integer(c_int64_t), intent(in) :: upper_margin, lower_margin, upper_mapping, lower_mapping
    end function

    !> Gives a frame x and y dimensions with axes and ticks. Returns the x dimension.
    integer(c_int64_t) function cx_addxydimension(chart, parent, x_domain, y_domain, x_opposite, &
        y_opposite, x_style, x_axis, y_style, y_axis, x_upper_margin, x_lower_margin, &
        y_upper_margin, y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, &
        y_lower_mapping) bind(C, name="cx_addxydimension_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, x_domain, y_domain, x_opposite, y_opposite
      integer(c_int64_t), intent(inout) :: x_style, x_axis, y_style, y_axis
      integer(c_int64_t), intent(in) :: x_upper_margin, x_lower_margin, y_upper_margin, &
        y_lower_margin, x_upper_mapping, x_lower_mapping, y_upper_mapping, y_lower_mapping
    end function

    !> Gives a frame x and y dimensions with axes, ticks and margins of 5%. Returns the x dimension.
    integer(c_int64_t) function cx_addxydimensionwithaxis(chart, parent, x_domain, y_domain, &
        x_opposite, y_opposite, x_style, x_axis, y_style, y_axis) &
        bind(C, name="cx_addxydimensionwithaxis_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, x_domain, y_domain, x_opposite, y_opposite
      integer(c_int64_t), intent(inout) :: x_style, x_axis, y_style, y_axis
    end function

    !> Gives a frame x and y dimensions with axes, ticks and margins of 0%, whose units have one
    !> length. Returns the x dimension.
    integer(c_int64_t) function cx_addxydimaxiswithsameratio(chart, parent, x_domain, y_domain, &
        x_opposite, y_opposite, same_ratio, x_style, x_axis, y_style, y_axis) &
        bind(C, name="cx_addxydimaxiswithsameratio_")
      import
      integer(c_int64_t), intent(in) :: chart, parent, x_domain, y_domain, x_opposite, y_opposite, &
        same_ratio
      integer(c_int64_t), intent(inout) :: x_style, x_axis, y_style, y_axis
    end function

  end interface

end module
