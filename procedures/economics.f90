! How fast does consumer spending in the United States grow, how much is saved, and is it
! the same in every decade?
!
! usage: economics [data set]
!
! Draws two charts over dates: spending per person with a growth curve for each decade, and
! the savings rate with a line for each decade, both by least squares. The data set is a
! data package or a CSV file with these columns; data/economics below the working directory
! when none is named.
program economics
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: draw_legend, drawing, new_drawing
  use korva
  use least_squares
  use number_cases
  implicit none

  character(*), parameter :: procedure_name = 'economics'
  real(dp), parameter :: seconds_per_year = 365.2425_dp*86400

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: date = 1, decade = 2, consumption = 3, population = 4, savings_rate = 5

  !> The cases without missing values; case i belongs to decades(group(i)).
  type :: sample
    real(dp), allocatable :: date(:), spending(:), savings(:)
    integer, allocatable :: group(:), decades(:)
  end type

  !> What one of the charts shows; texts are keys of the string table.
  type :: series
    character(:), allocatable :: title, subtitle, trend_label, trend_line, description
    logical :: grows  !< the trend is a growth curve, not a straight line
    real(dp), allocatable :: value(:)
  end type

  !> The trend of one decade: of the value, or of its logarithm when it grows.
  type :: trend
    logical :: grows
    real(dp) :: intercept, slope  !< at the first date; a year
    real(dp) :: mean              !< of the value
    integer :: cases
  end type

  !> The chart and the nodes that several steps refer to.
  type, extends(drawing) :: trend_plot
    integer :: decade, date, value, trend  !< variables
    integer :: points                      !< the element that the legend explains
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases

    call open_observations(observations, procedure_name, otherwise='data/economics', &
      names=[character(12) :: 'date', 'decade', 'consumption', 'population', 'savings_rate'], &
      numbers=1)
    call require(observations%split_by([observations%find_column('decade')]), &
      'cannot split by decade')
    call load_cases(observations, cases)

    call draw(observations, cases, series( &
      title='Consumer spending per person in the United States', &
      subtitle='Growth by decade^2', trend_label='Growth curve of its decade', &
      trend_line='Growth of a decade^4', description='Description of spending', &
      grows=.true., value=cases%spending))
    call draw(observations, cases, series( &
      title='Personal savings rate in the United States', &
      subtitle='Trend by decade^2', trend_label='Trend of its decade', &
      trend_line='Trend of a decade^4', description='Description of savings', &
      grows=.false., value=cases%savings))

    call end_library
    call observations%close()
  end subroutine

  ! Data

  !> Reads the cases in the order of their dates and drops those with a missing value.
  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp), allocatable :: rows(:, :)
    integer :: i

    call read_numbers(observations, rows)
    rows = rows(pack([(i, i=1, size(rows, 1))], rows(:, population) > 0), :)
    call require(size(rows, 1) > 0, 'the data set has no complete case')
    cases%date = rows(:, date)
    ! Billions of dollars for thousands of persons.
    cases%spending = 1.0e6_dp*rows(:, consumption)/rows(:, population)
    cases%savings = rows(:, savings_rate)
    allocate (cases%decades(0), cases%group(size(rows, 1)))
    do i = 1, size(rows, 1)
      if (.not. any(cases%decades == nint(rows(i, decade)))) &
        cases%decades = [cases%decades, nint(rows(i, decade))]
      cases%group(i) = findloc(cases%decades, nint(rows(i, decade)), dim=1)
    end do
  end subroutine

  ! Estimation

  !> The least-squares trend of the cases of one decade.
  type(trend) function fit(cases, shown, decade)
    type(sample), intent(in) :: cases
    type(series), intent(in) :: shown
    integer, intent(in) :: decade
    real(dp), allocatable :: x(:), y(:)
    real(dp) :: coefficients(2)

    x = pack(years(cases, cases%date), cases%group == decade)
    y = pack(shown%value, cases%group == decade)
    call require(maxval(x) > minval(x), 'no trend: a decade needs two different dates')
    call require(.not. shown%grows .or. all(y > 0), 'no growth curve: a value is not positive')

    fit%grows = shown%grows
    fit%cases = size(x)
    fit%mean = mean(y)
    if (shown%grows) y = log(y)
    coefficients = fitted_polynomial(x, y, degree=1)
    fit%intercept = coefficients(1)
    fit%slope = coefficients(2)
  end function

  elemental real(dp) function years(cases, date)
    type(sample), intent(in) :: cases
    real(dp), intent(in) :: date

    years = (date - cases%date(1))/seconds_per_year
  end function

  elemental real(dp) function predicted(line, year)
    type(trend), intent(in) :: line
    real(dp), intent(in) :: year

    predicted = line%intercept + line%slope*year
    if (line%grows) predicted = exp(predicted)
  end function

  ! The chart

  subroutine draw(observations, cases, shown)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(series), intent(in) :: shown
    type(trend) :: trends(size(cases%decades))
    type(trend_plot) :: plot
    integer :: i

    trends = [(fit(cases, shown, i), i=1, size(trends))]
    plot%drawing = new_drawing(observations, procedure_name)
    call declare_variables(plot, shown)
    call load_columns(plot, cases, shown, trends)
    call draw_axes(plot, shown)
    call draw_elements(plot)
    call draw_legend(plot%drawing, plot%points, label_of_variable(decade))
    call write_texts_and_send(plot, cases, shown, trends)
  end subroutine

  subroutine declare_variables(plot, shown)
    type(trend_plot), intent(inout) :: plot
    type(series), intent(in) :: shown
    integer :: format

    call add_variable(plot%chart, plot%source, decade, categorical=.true., handle=plot%decade)
    call add_relabels(plot%chart, plot%decade, decade)
    call add_variable(plot%chart, plot%source, date, handle=plot%date)
    if (shown%grows) then
      format = packed_format(format_dollar, 8, 0)
      call add_aggregate(plot%chart, plot%source, &
        label=translation('Spending per person (dollars a year)'), handle=plot%value)
      call set_variable_format(plot%chart, plot%value, format)
    else
      format = get_variable_format(plot%chart, savings_rate)
      call add_variable(plot%chart, plot%source, savings_rate, handle=plot%value)
    end if
    call add_aggregate(plot%chart, plot%source, label=translation(shown%trend_label), &
      handle=plot%trend)
    call set_variable_format(plot%chart, plot%trend, format)
  end subroutine

  subroutine load_columns(plot, cases, shown, trends)
    type(trend_plot), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(series), intent(in) :: shown
    type(trend), intent(in) :: trends(:)

    call load(plot%chart, plot%decade, cases%decades(cases%group))
    call load(plot%chart, plot%date, cases%date)
    call load(plot%chart, plot%value, shown%value)
    call load(plot%chart, plot%trend, predicted(trends(cases%group), years(cases, cases%date)))
  end subroutine

  !> x and y with 5% of room at either end.
  subroutine draw_axes(plot, shown)
    type(trend_plot), intent(in) :: plot
    type(series), intent(in) :: shown
    integer :: x_style, x_axis, y_style, y_axis, y_title

    call add_xy_dimensions_with_axes(plot%chart, plot%data, x_style=x_style, x_axis=x_axis, &
      y_style=y_style, y_axis=y_axis)
    if (shown%grows) then
      y_title = translation('Spending per person (dollars a year)')
    else
      y_title = label_of_variable(savings_rate)
    end if
    call add_label(plot%chart, x_axis, x_style, label_of_variable(date))
    call add_label(plot%chart, y_axis, y_style, y_title)
  end subroutine

  !> A point for each case and a line for each decade.
  subroutine draw_elements(plot)
    type(trend_plot), intent(inout) :: plot
    integer :: lines

    call add_xy_element(plot%chart, plot%data, 1, string_point, plot%date, plot%value, &
      string_scatter, plot%points)
    call add_style_by_color(plot%chart, plot%points, plot%decade)
    call add_xy_element(plot%chart, plot%data, 1, string_line, plot%date, plot%trend, &
      string_simpleline, lines)
    call add_style_by_color(plot%chart, lines, plot%decade)
  end subroutine

  ! Texts

  subroutine write_texts_and_send(plot, cases, shown, trends)
    type(trend_plot), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(series), intent(in) :: shown
    type(trend), intent(in) :: trends(:)
    integer :: lines(size(trends)), i

    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, translation(shown%title))
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of(shown%subtitle, [value_string(date, [minval(cases%date)]), &
      value_string(date, [maxval(cases%date)])]))
    do i = 1, size(trends)
      lines(i) = composite_of(shown%trend_line, [header_of(cases%decades(i)), &
        slope_of(trends(i)), mean_of(trends(i)), number_string(trends(i)%cases, 0)])
    end do
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      list_of(one_a_line, lines))
    call set_chart_description(plot%chart, translation(shown%description))
    call end_chart(plot%chart)
  end subroutine

  !> "Decade: 1970s"
  function header_of(code) result(string)
    integer, intent(in) :: code
    integer :: string

    string = split_header([real(code, dp)])
  end function

  !> Growth in percent a year, or percentage points a year.
  function slope_of(line) result(string)
    type(trend), intent(in) :: line
    integer :: string

    if (line%grows) then
      string = number_string(100*(exp(line%slope) - 1), 1, format_percent)
    else
      string = number_string(line%slope, 2)
    end if
  end function

  function mean_of(line) result(string)
    type(trend), intent(in) :: line
    integer :: string

    if (line%grows) then
      string = number_string(line%mean, 0, format_dollar)
    else
      string = mean_string(savings_rate, [line%mean])
    end if
  end function

end program
