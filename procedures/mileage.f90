! How far does a car go on a gallon, and what can be said of a single car?
!
! usage: mileage [data set]
!
! Draws fuel economy against engine displacement with the parabola that fits best, the band
! that holds it with 95% confidence, and the wider one that holds 95% of single cars. The data
! set is a data package or a CSV file with these columns; data/mileage below the working
! directory when none is named.
program mileage
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use drawings
  use korva
  use number_cases
  use regression_bands
  implicit none

  character(*), parameter :: procedure_name = 'mileage'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: displacement = 1, highway = 2

  real(dp), parameter :: confidence = 0.95_dp
  integer, parameter :: places_of_curve = 81

  type(data_set) :: observations
  real(dp), allocatable :: cases(:, :)

  call stop_when_refused(.true.)
  call load_numbers(observations, procedure_name, procedure_name, &
    [character(12) :: 'displacement', 'highway'], cases)
  call draw(regression_of(cases(:, displacement), cases(:, highway), 2, confidence))
  call end_library
  call observations%close()
  deallocate (cases)

contains

  subroutine draw(fit)
    type(regression), intent(in) :: fit
    type(drawing) :: plot
    integer :: x, y

    plot = new_drawing(observations, procedure_name, &
      'Fuel economy and engine displacement', 'Description of the curve')
    call draw_axes(plot, label_of_variable(displacement), label_of_variable(highway), &
      y_decimals=0)
    call draw_curve(plot, fit)
    call add_variable(plot%chart, plot%source, displacement, handle=x)
    call add_variable(plot%chart, plot%source, highway, handle=y)
    call load(plot%chart, [x, y], cases)
    call add_xy_element(plot%chart, plot%data, 1, string_point, x, y, string_scatter)
    call write_texts_and_send(plot, fit)
  end subroutine

  !> The curve with its bands, the wider one first: a source of its own, at even steps of x.
  subroutine draw_curve(plot, fit)
    type(drawing), intent(in) :: plot
    type(regression), intent(in) :: fit
    real(dp) :: places(places_of_curve)
    integer :: source, x, y, group

    places = even_places(cases(:, displacement), places_of_curve)
    call add_source(plot%chart, handle=source)
    call add_variable(plot%chart, source, displacement, handle=x)
    y = computed(plot, 'Fitted fuel economy', 1, source)
    call load(plot%chart, x, places)
    call load(plot%chart, y, fit%predicted(places))
    call add_element_group(plot%chart, plot%data, handle=group)
    call draw_band(plot, fit, group, x, places, single=.true.)
    call draw_band(plot, fit, group, x, places, single=.false.)
    call add_xy_element(plot%chart, group, 1, string_line, x, y, string_simpleline)
  end subroutine

  subroutine draw_band(plot, fit, group, x, places, single)
    type(drawing), intent(in) :: plot
    type(regression), intent(in) :: fit
    integer, intent(in) :: group, x
    real(dp), intent(in) :: places(:)
    logical, intent(in) :: single
    integer :: lower, upper

    lower = computed(plot, 'Lower limit', 1, x)
    upper = computed(plot, 'Upper limit', 1, x)
    call load(plot%chart, lower, fit%predicted(places) - fit%reach(places, single))
    call load(plot%chart, upper, fit%predicted(places) + fit%reach(places, single))
    call add_xy_element(plot%chart, group, merge(1, 2, single), string_area, x, &
      range_of(plot, lower, upper), string_simplearea)
  end subroutine

  subroutine write_texts_and_send(plot, fit)
    type(drawing), intent(in) :: plot
    type(regression), intent(in) :: fit

    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Parabola^5', [formula(fit%coefficients), string_of('R²'), &
      number_string(fit%r_squared, 3), number_string(fit%error, 2), &
      number_string(fit%cases, 0)]))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      translation('About bands'))
    call end_chart(plot%chart)
  end subroutine

  !> "49.25 - 11.76 x + 1.10 x²", in the signs of the output language.
  function formula(b) result(string)
    real(dp), intent(in) :: b(:)
    integer :: string

    string = string_of(text_of(number_string(b(1), 2))//term(b(2), ' x')//term(b(3), ' x²'))
  end function

  function term(coefficient, power)
    real(dp), intent(in) :: coefficient
    character(*), intent(in) :: power
    character(:), allocatable :: term

    term = merge(' - ', ' + ', coefficient < 0)//text_of(number_string(abs(coefficient), 2))//power
  end function

end program
