! How large is the brain of a mammal?
!
! usage: mammals [data set]
!
! Draws brain mass against body mass on logarithmic scales, with the line that fits the
! logarithms best and its confidence band, and names the species that are farthest from it.
! The data set is a data package or a CSV file with these columns; data/mammals below the
! working directory when none is named.
program mammals
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use charts
  use drawings
  use grouped_cases
  use korva
  use regression_bands
  implicit none

  character(*), parameter :: procedure_name = 'mammals'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: body = 2, brain = 3

  real(dp), parameter :: confidence = 0.95_dp
  integer, parameter :: places_of_line = 41

  !> Species that are farther from the line, in standard errors, are named.
  real(dp), parameter :: named_from = 1.9_dp

  type(data_set) :: observations
  type(sample) :: cases

  call stop_when_refused(.true.)
  call open_observations(observations, procedure_name, otherwise='data/mammals', &
    names=[character(5) :: 'name', 'body', 'brain'], numbers=body)
  call start_library(procedure_name, observations%dictionary)
  call load_sample(observations, measures=2, cases=cases)
  call require(all(cases%values > 0), 'a mass is not above zero')
  associate (masses => log10(cases%values))
    call draw(regression_of(masses(:, 1), masses(:, 2), 1, confidence))
  end associate
  call end_library
  call observations%close()

contains

  subroutine draw(fit)
    type(regression), intent(in) :: fit
    type(drawing) :: plot

    plot = new_drawing(observations, procedure_name, &
      'Brain mass and body mass of mammals', 'Description of the line')
    call draw_axis(plot, role_x, label_of_variable(body))
    call draw_axis(plot, role_y, label_of_variable(brain))
    call draw_line(plot, fit)
    call draw_species(plot, fit)
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Power law^5', [number_string(10**fit%coefficients(1), 2), &
      number_string(fit%coefficients(2), 3), string_of('R²'), number_string(fit%r_squared, 3), &
      number_string(fit%cases, 0)]))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      composite_of('About the band^1', [number_string(named_from, 1)]))
    call end_chart(plot%chart)
  end subroutine

  !> A scale of powers of ten, with ticks at their multiples.
  subroutine draw_axis(plot, role, title)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: role, title
    integer :: dimension, style, axis, told

    call add_dimension_axis(plot%chart, plot%data, role, style=style, axis=axis, &
      upper_margin='5%', lower_margin='5%', handle=dimension)
    call set_dimension_scale(plot%chart, dimension, string_log, '10')
    ! Made all the same, they say that the style of their marks is that of the major ticks.
    call add_minor_ticks(plot%chart, axis, tick_count='8', stat=told)
    call add_label(plot%chart, axis, style, title)
  end subroutine

  !> The line and its band, which bends on even steps of the logarithm: a source of its own.
  subroutine draw_line(plot, fit)
    type(drawing), intent(in) :: plot
    type(regression), intent(in) :: fit
    real(dp) :: places(places_of_line)
    integer :: source, x, y, lower, upper, group

    places = even_places(log10(cases%values(:, 1)), places_of_line)
    call add_source(plot%chart, handle=source)
    call add_variable(plot%chart, source, body, handle=x)
    y = computed(plot, 'Fitted brain mass (g)', 2, source)
    lower = computed(plot, 'Lower limit', 2, source)
    upper = computed(plot, 'Upper limit', 2, source)
    call load(plot%chart, x, 10**places)
    call load(plot%chart, y, 10**fit%predicted(places))
    call load(plot%chart, lower, 10**(fit%predicted(places) - fit%reach(places, .false.)))
    call load(plot%chart, upper, 10**(fit%predicted(places) + fit%reach(places, .false.)))
    call add_element_group(plot%chart, plot%data, handle=group)
    call add_xy_element(plot%chart, group, 1, string_area, x, range_of(plot, lower, upper), &
      string_simplearea)
    call add_xy_element(plot%chart, group, 1, string_line, x, y, string_simpleline)
  end subroutine

  subroutine draw_species(plot, fit)
    type(drawing), intent(in) :: plot
    type(regression), intent(in) :: fit
    character(:), allocatable :: name
    integer :: x, y, names, points, i

    call add_variable(plot%chart, plot%source, body, handle=x)
    call add_variable(plot%chart, plot%source, brain, handle=y)
    call add_labeling_aggregate(plot%chart, plot%source, categorical=.true., &
      label=translation('Species far from the line'), handle=names)
    call load(plot%chart, [x, y], cases%values)
    do i = 1, fit%cases
      name = ''
      if (is_far(fit, log10(cases%values(i, :)))) name = cases%groups(cases%group(i))%label
      call load(plot%chart, names, [name], first=i)
    end do
    call add_xy_element(plot%chart, plot%data, 1, string_point, x, y, string_scatter, points)
    call add_labeling(plot%chart, points, names)
  end subroutine

  !> Whether the logarithms of body and brain mass are far from the line.
  pure logical function is_far(fit, masses)
    type(regression), intent(in) :: fit
    real(dp), intent(in) :: masses(2)

    is_far = abs(masses(2) - fit%predicted(masses(1))) > named_from*fit%error
  end function

end program
