! How many people in the United States were without work, and for how long?
!
! usage: unemployment [data set]
!
! Draws the share of the unemployed as a line over dates, and how share and duration went
! together from the year 2000 on, as a path on which the years are named. The data set is a
! data package or a CSV file with these columns; data/economics below the working directory
! when none is named.
program unemployment
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use calendar, only: split_date
  use charts
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  use number_cases
  implicit none

  character(*), parameter :: procedure_name = 'unemployment'
  integer, parameter :: first_year_of_path = 2000

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: date = 1, unemployed = 2, population = 3, weeks = 4

  type(data_set) :: observations
  real(dp), allocatable :: cases(:, :), share(:)  !< share: of the population, in percent

  call stop_when_refused(.true.)
  call load_numbers(observations, procedure_name, 'economics', &
    [character(18) :: 'date', 'unemployed', 'population', 'unemployment_weeks'], cases)
  call require(all(cases(:, population) > 0), 'a population is not above zero')
  share = 100*cases(:, unemployed)/cases(:, population)
  call draw_line
  call draw_path
  call end_library
  call observations%close()
  deallocate (cases, share)

contains

  subroutine draw_line
    type(drawing) :: plot
    integer :: dates, shares, line, average

    plot = new_drawing(observations, procedure_name, 'Unemployment over dates', &
      'Description of the line')
    call add_variable(plot%chart, plot%source, date, handle=dates)
    shares = computed(plot, 'Share of the population (%)', 1)
    call load(plot%chart, dates, cases(:, date))
    call load(plot%chart, shares, share)
    call draw_axes(plot, label_of_variable(date), translation('Share of the population (%)'))
    call add_xy_element(plot%chart, plot%data, 1, string_line, dates, shares, &
      string_simpleline, line)
    call add_y_reference_line(plot%chart, plot%data, real_string(mean(share)), guide_style=1, &
      handle=average)
    call set_element_name(plot%chart, average, translation('Mean'))
    call name_element(plot, line, 'Unemployed', 1)
    call add_legend_frame_of(plot%chart, plot%graph, average, 2)
    call end_chart(plot%chart)
  end subroutine

  !> A point for each date, joined in their order; each January has its year beside it.
  subroutine draw_path
    type(drawing) :: plot
    integer :: shares, durations, years, path, points, i, year, month

    plot = new_drawing(observations, procedure_name, 'Unemployment and its duration', &
      'Description of the path')
    shares = computed(plot, 'Share of the population (%)', 1)
    call add_variable(plot%chart, plot%source, weeks, handle=durations)
    call add_labeling_aggregate(plot%chart, plot%source, categorical=.true., &
      label=translation('Year'), handle=years)
    do i = 1, size(share)
      call split_date(cases(i, date), year, month)
      if (year < first_year_of_path) cycle
      call add_row(plot%chart)
      call add_double_data_value(plot%chart, shares, share(i))
      call add_double_data_value(plot%chart, durations, cases(i, weeks))
      call add_data_value(plot%chart, years, merge(text_of(integer_string(year)), '    ', month == 1))
    end do
    call draw_axes(plot, translation('Share of the population (%)'), label_of_variable(weeks))
    call add_xy_element(plot%chart, plot%data, 1, string_path, shares, durations, &
      string_simpleline, path)
    call add_xy_element(plot%chart, plot%data, 1, string_point, shares, durations, &
      string_scatter, points)
    call add_labeling(plot%chart, points, years)
    call end_chart(plot%chart)
  end subroutine

end program
