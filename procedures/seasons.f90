! How do deaths from lung diseases go with the seasons?
!
! usage: seasons [data set]
!
! Draws the deaths of men and women over the months as areas, the means of each month of the
! year around a circle as sectors whose areas are the deaths, each year as a line around a
! circle, and how the deaths of a month go with those of the months before it. The data set
! is a data package or a CSV file with these columns; data/lung_deaths below the working
! directory when none is named.
program seasons
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use calendar, only: months_of_year, split_date
  use charts
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  implicit none

  character(*), parameter :: procedure_name = 'seasons'
  integer, parameter :: longest_lag = 24
  real(dp), parameter :: normal_95 = 1.959964_dp !< the quantile of 95 % limits

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: month = 1, sexes(2) = [2, 3]

  !> The months in their order, without gaps.
  type :: sample
    real(dp), allocatable :: month(:), deaths(:, :)  !< seconds; deaths of a month, of a sex
    integer, allocatable :: year(:), of_year(:)      !< the year of a month, and its number there
  end type

  type(data_set) :: observations
  type(sample) :: cases

  call stop_when_refused(.true.)
  call open_observations(observations, procedure_name, otherwise='data/lung_deaths', &
    names=[character(5) :: 'month', 'men', 'women'], numbers=1)
  call load_cases(cases)
  call start_library(procedure_name, observations%dictionary)
  call draw_areas
  call draw_rose
  call draw_years
  call draw_correlations(autocorrelations(sum(cases%deaths, dim=2), longest_lag))
  call end_library
  call observations%close()

contains

  ! Data

  subroutine load_cases(cases)
    type(sample), intent(out) :: cases
    real(dp) :: cells(3)
    integer :: row, months

    months = observations%row_count()
    allocate (cases%month(months), cases%deaths(months, 2), cases%year(months), &
      cases%of_year(months))
    do row = 1, months
      call require(observations%read_row(row, cells), 'cannot read the data set')
      call require(all(cells > missing_value()), 'a series has to be without gaps')
      cases%month(row) = cells(month)
      cases%deaths(row, :) = cells(sexes)
      call split_date(cells(month), cases%year(row), cases%of_year(row))
    end do
    call require(months > longest_lag, 'the series is too short')
    call require(all(12*(cases%year(2:) - cases%year(:months - 1)) &
      + cases%of_year(2:) - cases%of_year(:months - 1) == 1), 'the months do not follow each other')
  end subroutine

  ! Statistics

  !> Correlations of a series with itself, 0 to `most` months later.
  pure function autocorrelations(series, most) result(correlations)
    real(dp), intent(in) :: series(:)
    integer, intent(in) :: most
    real(dp) :: correlations(0:most), deviations(size(series))
    integer :: lag

    deviations = series - mean(series)
    do lag = 0, most
      correlations(lag) = dot_product(deviations(:size(series) - lag), deviations(lag + 1:))
    end do
    correlations = correlations/correlations(0)
  end function

  ! The charts

  subroutine draw_areas
    type(drawing) :: plot
    integer :: months, sex, deaths, areas

    plot = new_drawing(observations, procedure_name, 'Deaths from lung diseases', &
      'Description of areas')
    call add_variable(plot%chart, plot%source, month, handle=months)
    sex = sex_variable(plot)
    deaths = computed(plot, 'Deaths', 0)
    call load_side_by_side(plot, months, sex, deaths, cases%month, sexes, cases%deaths)
    call draw_axes(plot, label_of_variable(month), translation('Deaths'))
    call add_xy_element(plot%chart, plot%data, 1, string_area, months, deaths, &
      string_stackedarea, areas)
    call group(plot, areas, sex, string_stack)
    call add_legend_frame(plot%chart, plot%graph, areas, 1, aesthetic=string_style_by)
    call end_chart(plot%chart)
  end subroutine

  !> The radius goes with the root of the deaths, so that areas go with the deaths.
  subroutine draw_rose
    type(drawing) :: plot
    real(dp) :: means(months_of_year, size(sexes))
    integer :: months, sex, deaths, sectors, m, k

    plot = new_drawing(observations, procedure_name, 'Deaths by month of the year', &
      'Description of sectors')
    months = month_variable(plot)
    sex = sex_variable(plot)
    deaths = computed(plot, 'Mean deaths', 0)
    do concurrent(m=1:months_of_year, k=1:size(sexes))
      means(m, k) = mean(pack(cases%deaths(:, k), cases%of_year == m))
    end do
    call load_side_by_side(plot, months, sex, deaths, [(real(m, dp), m=1, months_of_year)], &
      sexes, means)
    call add_coordinate_transform(plot%chart, plot%data, string_polar)
    call draw_axes(plot, label_of_variable(month), translation('Mean deaths'))
    call set_dimension_scale(plot%chart, get_dimension(plot%chart, plot%data, role_y), &
      string_power, real_string(0.5_dp))
    call add_xy_element(plot%chart, plot%data, 1, string_interval, months, deaths, &
      string_stackedbar, sectors)
    call group(plot, sectors, sex, string_stack)
    call add_legend_frame(plot%chart, plot%graph, sectors, 1, aesthetic=string_style_by)
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      translation('About areas'))
    call end_chart(plot%chart)
  end subroutine

  subroutine draw_years
    type(drawing) :: plot
    integer :: months, years, deaths, lines, domain

    plot = new_drawing(observations, procedure_name, 'Deaths around the year', &
      'Description of lines')
    months = month_variable(plot)
    call add_aggregate(plot%chart, plot%source, categorical=.true., label=translation('Year'), &
      handle=years)
    deaths = computed(plot, 'Deaths', 0)
    call load(plot%chart, months, cases%of_year)
    call load(plot%chart, years, cases%year)
    call load(plot%chart, deaths, sum(cases%deaths, dim=2))

    call add_coordinate_transform(plot%chart, plot%data, string_polar)
    call add_domain(plot%chart, handle=domain)
    call add_interval_ex(plot%chart, integer_string(0), &
      real_string(500*real(ceiling(maxval(sum(cases%deaths, dim=2))/500), dp)), domain)
    call add_domain_reference(plot%chart, deaths, domain)
    call draw_axes(plot, label_of_variable(month), translation('Deaths'))
    call set_dimension_domain(plot%chart, get_dimension(plot%chart, plot%data, role_y), domain)
    call add_xy_element(plot%chart, plot%data, 1, string_line, months, deaths, &
      string_simpleline, lines)
    call add_style_by_color(plot%chart, lines, years)
    call add_legend_frame(plot%chart, plot%graph, lines, 1, aesthetic=string_style_by)
    call end_chart(plot%chart)
  end subroutine

  !> Bars of the correlations, with the limits that hold 95 % of those of noise.
  subroutine draw_correlations(correlations)
    real(dp), intent(in) :: correlations(0:)
    type(drawing) :: plot
    integer :: lags, values, bars, i
    real(dp) :: limit

    plot = new_drawing(observations, procedure_name, 'Correlation with months before', &
      'Description of correlations')
    lags = computed(plot, 'Lag (months)', 0)
    values = computed(plot, 'Autocorrelation', 2)
    call load(plot%chart, lags, [(i, i=0, ubound(correlations, 1))])
    call load(plot%chart, values, correlations)
    call draw_axes(plot, translation('Lag (months)'), translation('Autocorrelation'))
    call add_xy_element(plot%chart, plot%data, 1, string_interval, lags, values, &
      string_simplebar, bars)
    limit = normal_95/sqrt(real(size(cases%month), dp))
    call draw_level(plot, limit, 'Upper limit', 1)
    call draw_level(plot, -limit, 'Lower limit', 2)
    call end_chart(plot%chart)
  end subroutine

  ! Variables

  function sex_variable(plot) result(sex)
    type(drawing), intent(in) :: plot
    integer :: sex

    call add_aggregate(plot%chart, plot%source, categorical=.true., label=translation('Sex'), &
      handle=sex)
  end function

  !> Months by their numbers, which have their names in the output language as labels.
  function month_variable(plot) result(months)
    type(drawing), intent(in) :: plot
    integer :: months, m
    integer, parameter :: format_month = 27, width = 9

    call add_aggregate(plot%chart, plot%source, categorical=.true., &
      label=label_of_variable(month), handle=months)
    do m = 1, months_of_year
      call add_relabel(plot%chart, months, integer_string(m), &
        display_of_integer(m, packed_format(format_month, width, 0)))
    end do
  end function

end program
