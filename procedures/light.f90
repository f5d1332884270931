! Did Michelson measure the speed of light always in the same way?
!
! usage: light [data set]
!
! Draws control charts of the means and of the ranges of samples, with limits at three
! standard deviations; samples beyond them are marked. The data set is a data package or a
! CSV file with these columns; data/light below the working directory when none is named.
program light
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use charts, only: require
  use drawings
  use korva
  use least_squares, only: mean
  use number_cases
  use probabilities
  implicit none

  character(*), parameter :: procedure_name = 'light'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: sample_number = 1, speed = 2

  ! Codes of what a sample is.
  integer, parameter :: within = 1, beyond = 2

  !> A line through the middle of what samples show, and how far they may be from it.
  type :: control
    real(dp) :: center, lower, upper
  end type

  !> What one of the charts shows of sample s; texts are keys of the string table.
  type :: statistic
    character(:), allocatable :: title, description, label
    real(dp), allocatable :: value(:)
    type(control) :: limits
  end type

  type(data_set) :: observations
  real(dp), allocatable :: rows(:, :), samples(:, :)

  call stop_when_refused(.true.)
  call load_numbers(observations, procedure_name, procedure_name, &
    [character(6) :: 'sample', 'speed'], rows)
  samples = in_samples(nint(rows(:, sample_number)), rows(:, speed))
  call draw(means_of(samples))
  call draw(ranges_of(samples))
  call end_library
  call observations%close()
  deallocate (rows, samples)

contains

  ! Estimation

  !> Value i of sample s at (i, s). All samples have to be of one size, for which there is
  !> one pair of limits.
  function in_samples(number, values) result(samples)
    integer, intent(in) :: number(:)
    real(dp), intent(in) :: values(:)
    real(dp), allocatable :: samples(:, :)
    integer :: s

    associate (cases => count(number == 1), count_of_samples => maxval(number))
      call require(minval(number) == 1, 'samples have to be numbered from 1')
      call require(cases > 1, 'a sample needs two values')
      call require(all([(count(number == s) == cases, s=1, count_of_samples)]), &
        'samples have to be of the same size')
      allocate (samples(cases, count_of_samples))
      do s = 1, count_of_samples
        samples(:, s) = pack(values, number == s)
      end do
    end associate
  end function

  !> The means of samples, and what limits them: the deviation of a single value follows
  !> from the mean range.
  type(statistic) function means_of(samples) result(shown)
    real(dp), intent(in) :: samples(:, :)
    type(range_moments) :: usual
    real(dp) :: center, reach

    usual = range_of_normals(size(samples, 1))
    allocate (shown%value, source=sum(samples, dim=1)/size(samples, 1))
    center = mean(shown%value)
    reach = 3*mean(ranges(samples))/usual%mean/sqrt(real(size(samples, 1), dp))
    shown%limits = control(center, center - reach, center + reach)
    shown%title = 'Means of measurements of the speed of light'
    shown%description = 'Description of means'
    shown%label = 'Mean of the sample (km/s)'
  end function

  type(statistic) function ranges_of(samples) result(shown)
    real(dp), intent(in) :: samples(:, :)
    type(range_moments) :: usual
    real(dp) :: center, reach

    usual = range_of_normals(size(samples, 1))
    allocate (shown%value, source=ranges(samples))
    center = mean(shown%value)
    reach = 3*usual%deviation/usual%mean*center
    shown%limits = control(center, max(0.0_dp, center - reach), center + reach)
    shown%title = 'Ranges of measurements of the speed of light'
    shown%description = 'Description of ranges'
    shown%label = 'Range of the sample (km/s)'
  end function

  pure function ranges(samples)
    real(dp), intent(in) :: samples(:, :)
    real(dp) :: ranges(size(samples, 2))

    ranges = maxval(samples, dim=1) - minval(samples, dim=1)
  end function

  elemental integer function state_of(value, limits) result(state)
    real(dp), intent(in) :: value
    type(control), intent(in) :: limits

    state = merge(beyond, within, value < limits%lower .or. value > limits%upper)
  end function

  ! The charts

  subroutine draw(shown)
    type(statistic), intent(in) :: shown
    type(drawing) :: plot
    integer :: numbers, values, i

    plot = new_drawing(observations, procedure_name, shown%title, shown%description)
    call add_variable(plot%chart, plot%source, sample_number, handle=numbers)
    call load(plot%chart, numbers, [(i, i=1, size(shown%value))])
    values = computed(plot, shown%label, 1)
    call load(plot%chart, values, shown%value)
    call draw_axes(plot, label_of_variable(sample_number), translation(shown%label), &
      y_decimals=0)
    call add_xy_element(plot%chart, plot%data, 1, string_line, numbers, values, &
      string_controlchart_line)
    call draw_limits(plot, shown%limits, numbers)
    call draw_samples(plot, shown, numbers, values)
    call write_texts_and_send(plot, shown)
  end subroutine

  subroutine draw_limits(plot, limits, numbers)
    type(drawing), intent(in) :: plot
    type(control), intent(in) :: limits
    integer, intent(in) :: numbers

    call draw_limit(plot, numbers, limits%upper, string_controlchart_ucl, 'Upper control limit', 2)
    call draw_limit(plot, numbers, limits%center, string_controlchart_average, 'Center line', 3)
    call draw_limit(plot, numbers, limits%lower, string_controlchart_lcl, 'Lower control limit', 4)
  end subroutine

  !> A line at the same height for all samples, with its legend.
  subroutine draw_limit(plot, numbers, height, style_kind, name, index)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: numbers, style_kind, index
    real(dp), intent(in) :: height
    character(*), intent(in) :: name  !< a key of the string table
    integer :: limit, line

    limit = computed(plot, name, 1)
    call load(plot%chart, limit, spread(height, 1, size(samples, 2)))
    call add_xy_element(plot%chart, plot%data, 1, string_line, numbers, limit, style_kind, line)
    call name_element(plot, line, name, index)
  end subroutine

  !> A point for each sample, marked where it is beyond the limits.
  subroutine draw_samples(plot, shown, numbers, values)
    type(drawing), intent(in) :: plot
    type(statistic), intent(in) :: shown
    integer, intent(in) :: numbers, values
    integer :: states, points

    call add_aggregate(plot%chart, plot%source, categorical=.true., &
      label=translation('Sample'), handle=states)
    call add_relabel(plot%chart, states, integer_string(within), translation('Within the limits'))
    call add_relabel(plot%chart, states, integer_string(beyond), translation('Beyond a limit'))
    call load(plot%chart, states, state_of(shown%value, shown%limits))
    call add_xy_element(plot%chart, plot%data, 1, string_point, numbers, values, &
      string_controlchart_marker, points)
    call add_style_by_color(plot%chart, points, states)
    call draw_legend(plot, points, translation('Sample'))
  end subroutine

  subroutine write_texts_and_send(plot, shown)
    type(drawing), intent(in) :: plot
    type(statistic), intent(in) :: shown
    integer, allocatable :: out_of_control(:)
    integer :: s

    allocate (out_of_control, source=pack([(s, s=1, size(shown%value))], &
      state_of(shown%value, shown%limits) == beyond))
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Limits^5', [number_string(shown%limits%center, 1), &
      number_string(shown%limits%lower, 1), &
      number_string(shown%limits%upper, 1), &
      number_string(size(shown%value), 0), number_string(size(samples, 1), 0)]))
    if (size(out_of_control) > 0) then
      call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
        composite_of('Samples beyond^1', [list_of('[%1:, ^1:]1', &
        [(number_string(out_of_control(s), 0), s=1, size(out_of_control))])]))
    else
      call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
        translation('No sample beyond'))
    end if
    call end_chart(plot%chart)
  end subroutine

end program
