! How warm is it in Seattle in the course of a year?
!
! usage: weather [data set]
!
! Draws for each month how far temperatures reach: a bar from the mean of the lowest to the
! mean of the highest of a day, a line from the lowest to the highest of all days, and a line
! through the means. The data set is a data package or a CSV file with these columns;
! data/weather below the working directory when none is named.
program weather
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  use number_cases
  implicit none

  character(*), parameter :: procedure_name = 'weather'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: month = 1, lowest = 2, highest = 3

  ! Columns of what the chart shows of each month.
  integer, parameter :: record_low = 1, mean_low = 2, middle = 3, mean_high = 4, record_high = 5

  type(data_set) :: observations
  real(dp), allocatable :: days(:, :)
  integer, allocatable :: months(:)
  integer :: m

  call stop_when_refused(.true.)
  call load_numbers(observations, procedure_name, procedure_name, &
    [character(8) :: 'month', 'temp_min', 'temp_max'], days)
  allocate (months, source=pack([(m, m=1, 12)], [(any(nint(days(:, month)) == m), m=1, 12)]))
  call draw(temperatures(months))
  call end_library
  call observations%close()
  deallocate (days, months)

contains

  !> Row m has the temperatures of months(m), in the order of the columns.
  function temperatures(months) result(shown)
    integer, intent(in) :: months(:)
    real(dp) :: shown(size(months), record_high)
    integer :: m

    do m = 1, size(months)
      associate (low => pack(days(:, lowest), nint(days(:, month)) == months(m)), &
          high => pack(days(:, highest), nint(days(:, month)) == months(m)))
        shown(m, :) = [minval(low), mean(low), mean((low + high)/2), mean(high), maxval(high)]
      end associate
    end do
  end function

  subroutine draw(shown)
    real(dp), intent(in) :: shown(:, :)
    type(drawing) :: plot
    integer :: x, values(size(shown, 2)), records, bars, line

    plot = new_drawing(observations, procedure_name, 'Temperatures in Seattle by month', &
      'Description of ranges')
    x = categories(plot, month)
    values(record_low) = computed(plot, 'Lowest of all days', 1)
    values(mean_low) = computed(plot, 'Mean lowest of a day', 1)
    values(middle) = computed(plot, 'Mean of all days', 1)
    values(mean_high) = computed(plot, 'Mean highest of a day', 1)
    values(record_high) = computed(plot, 'Highest of all days', 1)
    call load(plot%chart, x, months)
    call load(plot%chart, values, shown)

    call draw_axes(plot, label_of_variable(month), translation('Temperature'), &
      y_decimals=0)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, x, &
      range_of(plot, values(record_low), values(record_high)), string_errorbar, records)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, x, &
      range_of(plot, values(mean_low), values(mean_high)), string_rangebar, bars)
    call add_xy_element(plot%chart, plot%data, 1, string_line, x, values(middle), &
      string_simpleline, line)
    call name_element(plot, line, 'Mean temperature', 1)
    call name_element(plot, bars, 'Mean range of a day', 2)
    call name_element(plot, records, 'Range of all days', 3)
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Days^4', [number_string(size(days, 1), 0), &
      number_string(minval(shown(:, record_low)), 1), &
      number_string(maxval(shown(:, record_high)), 1), &
      number_string(mean((days(:, lowest) + days(:, highest))/2), 1)]))
    call end_chart(plot%chart)
  end subroutine

end program
