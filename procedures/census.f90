! How did the population of the United States grow, and which curve tells it best?
!
! usage: census [data set]
!
! Fits eleven curve models by least squares, in the form in which each is linear, and
! draws them in groups that leave each chart readable: over the number of the census, and
! over its day. The data set is a data package or a CSV file with these columns;
! data/census below the working directory when none is named.
program census
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: drawing, new_drawing
  use korva
  use least_squares
  use number_cases
  implicit none

  character(*), parameter :: procedure_name = 'census'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: number = 1, day = 2, population = 3

  !> What a logistic curve approaches, in millions: least squares takes it as given.
  real(dp), parameter :: population_limit = 250

  ! The models, in the order of their names in the library's string table.
  integer, parameter :: linear = 1, logarithmic = 2, inverse = 3, quadratic = 4, cubic = 5, &
    compound = 6, power = 7, s_curve = 8, growth = 9, exponential = 10, logistic = 11

  type :: sample
    real(dp), allocatable :: number(:), day(:), population(:)
  end type

  !> A model with its coefficients as the library takes them.
  type :: curve
    integer :: model
    real(dp) :: b(4)
    real(dp) :: r_squared
    integer :: name  !< a string handle
  end type

  !> What one of the charts shows.
  type :: view
    integer, allocatable :: models(:)
    logical :: over_days
  end type

  !> The chart and the nodes that several steps refer to.
  type, extends(drawing) :: curves_plot
    integer :: x, y    !< variables
    integer :: points  !< an element
    integer, allocatable :: curves(:)
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    logical, parameter :: axes(2) = [.false., .true.]
    integer :: i

    call open_observations(observations, procedure_name, otherwise='data/census', &
      names=[character(10) :: 'census', 'day', 'population'], numbers=1)
    call load_cases(observations, cases)

    ! Compound, growth and exponential are one curve written in three ways: each chart has
    ! one of them, and no more curves than there are kinds of dashes.
    do i = 1, size(axes)
      call draw(observations, cases, view([linear, quadratic, cubic, compound], axes(i)))
      call draw(observations, cases, view([logarithmic, inverse, s_curve, growth], axes(i)))
      call draw(observations, cases, view([power, exponential, logistic], axes(i)))
    end do

    call end_library
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp), allocatable :: rows(:, :)

    call read_numbers(observations, rows)
    cases = sample(number=rows(:, number), day=rows(:, day), population=rows(:, population))
    call require(all(cases%number > 0) .and. all(cases%day > 0), &
      'numbers of censuses and days have to be after zero')
    call require(all(cases%population > 0) .and. all(cases%population < population_limit), &
      'no curve of growth: a population is not between zero and the limit')
  end subroutine

  ! Estimation: every model is a polynomial once x or y is transformed

  type(curve) function fit(model, x, y)
    integer, intent(in) :: model
    real(dp), intent(in) :: x(:), y(:)
    integer :: degree

    degree = 1
    if (model == quadratic) degree = 2
    if (model == cubic) degree = 3
    fit%model = model
    fit%b = 0
    fit%b(:degree + 1) = fitted_polynomial(transformed_x(model, x), transformed_y(model, y), degree)

    select case (model)
    case (compound)
      fit%b(:2) = exp(fit%b(:2))
    case (power, exponential)
      fit%b(1) = exp(fit%b(1))
    case (logistic)
      fit%b = [exp(fit%b(:2)), 1/population_limit, 0.0_dp]
    end select
    fit%r_squared = explained_share(y, predicted(fit, x))
  end function

  elemental real(dp) function transformed_x(model, x) result(transformed)
    integer, intent(in) :: model
    real(dp), intent(in) :: x

    select case (model)
    case (logarithmic, power)
      transformed = log(x)
    case (inverse, s_curve)
      transformed = 1/x
    case default
      transformed = x
    end select
  end function

  elemental real(dp) function transformed_y(model, y) result(transformed)
    integer, intent(in) :: model
    real(dp), intent(in) :: y

    select case (model)
    case (linear, logarithmic, inverse, quadratic, cubic)
      transformed = y
    case (logistic)
      transformed = log(1/y - 1/population_limit)
    case default
      transformed = log(y)
    end select
  end function

  elemental real(dp) function predicted(line, x)
    type(curve), intent(in) :: line
    real(dp), intent(in) :: x

    associate (b => line%b)
      select case (line%model)
      case (linear, quadratic, cubic)
        predicted = b(1) + x*(b(2) + x*(b(3) + x*b(4)))
      case (logarithmic)
        predicted = b(1) + b(2)*log(x)
      case (inverse)
        predicted = b(1) + b(2)/x
      case (compound)
        predicted = b(1)*b(2)**x
      case (power)
        predicted = b(1)*x**b(2)
      case (s_curve)
        predicted = exp(b(1) + b(2)/x)
      case (growth)
        predicted = exp(b(1) + b(2)*x)
      case (exponential)
        predicted = b(1)*exp(b(2)*x)
      case default
        predicted = 1/(b(3) + b(1)*b(2)**x)
      end select
    end associate
  end function

  ! The charts

  subroutine draw(observations, cases, shown)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(view), intent(in) :: shown
    type(curve) :: curves(size(shown%models))
    type(curves_plot) :: plot
    real(dp) :: x(size(cases%number))
    integer :: i

    x = merge(cases%day, cases%number, shown%over_days)
    curves = [(fit(shown%models(i), x, cases%population), i=1, size(curves))]
    plot%drawing = new_drawing(observations, procedure_name)
    call add_variable(plot%chart, plot%source, merge(day, number, shown%over_days), handle=plot%x)
    call add_variable(plot%chart, plot%source, population, handle=plot%y)
    call load(plot%chart, plot%x, x)
    call load(plot%chart, plot%y, cases%population)
    call draw_axes(plot, shown)
    call draw_points_and_curves(plot, shown, curves)
    call draw_legends(plot)
    call write_texts_and_send(plot, shown, curves)
  end subroutine

  subroutine draw_axes(plot, shown)
    type(curves_plot), intent(in) :: plot
    type(view), intent(in) :: shown
    integer :: x_style, x_axis, y_style, y_axis

    call add_xy_dimensions_with_axes(plot%chart, plot%data, x_style=x_style, x_axis=x_axis, &
      y_style=y_style, y_axis=y_axis)
    call add_label(plot%chart, x_axis, x_style, &
      label_of_variable(merge(day, number, shown%over_days)))
    call add_label(plot%chart, y_axis, y_style, label_of_variable(population))
  end subroutine

  !> The curves go by the names that the library gives their models.
  subroutine draw_points_and_curves(plot, shown, curves)
    type(curves_plot), intent(inout) :: plot
    type(view), intent(in) :: shown
    type(curve), intent(inout) :: curves(:)
    character(6) :: key
    integer :: i

    call add_xy_element(plot%chart, plot%data, 1, string_point, plot%x, plot%y, string_scatter, &
      plot%points)
    call set_element_name(plot%chart, plot%points, translation('Censuses'))
    allocate (plot%curves(size(curves)))
    do i = 1, size(curves)
      plot%curves(i) = curve_node(plot, curves(i), i, shown%over_days)
      write (key, '(a, i5)') 'E', 60550 + curves(i)%model
      curves(i)%name = translation(key)
    end do
  end subroutine

  function curve_node(plot, line, style, over_days) result(node)
    type(curves_plot), intent(in) :: plot
    type(curve), intent(in) :: line
    integer, intent(in) :: style
    logical, intent(in) :: over_days
    integer :: node

    associate (chart => plot%chart, frame => plot%data, b => line%b)
      select case (line%model)
      case (linear)
        call add_linear_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (logarithmic)
        call add_logarithmic_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (inverse)
        call add_inverse_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (quadratic)
        call add_quadratic_fit(chart, frame, b(1), b(2), b(3), style, over_days, node)
      case (cubic)
        call add_cubic_fit(chart, frame, b(1), b(2), b(3), b(4), style, over_days, node)
      case (compound)
        call add_compound_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (power)
        call add_power_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (s_curve)
        call add_s_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (growth)
        call add_growth_fit(chart, frame, b(1), b(2), style, over_days, node)
      case (exponential)
        call add_exponential_fit(chart, frame, b(1), b(2), style, over_days, node)
      case default
        call add_logistic_fit(chart, frame, b(1), b(2), b(3), style, over_days, node)
      end select
    end associate
  end function

  !> One for the points and, below it, one for each curve.
  subroutine draw_legends(plot)
    type(curves_plot), intent(in) :: plot
    integer :: i

    call add_legend_frame(plot%chart, plot%graph, plot%points, 1)
    do i = 1, size(plot%curves)
      call add_legend_frame_of(plot%chart, plot%graph, plot%curves(i), i + 1)
    end do
  end subroutine

  ! Texts

  subroutine write_texts_and_send(plot, shown, curves)
    type(curves_plot), intent(in) :: plot
    type(view), intent(in) :: shown
    type(curve), intent(in) :: curves(:)
    character(*), parameter :: commas = '[%1:, ^1:]1'
    integer :: lines(size(curves)), i

    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Population of the United States'))
    if (shown%over_days) then
      call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
        translation('Curves over days'))
    else
      call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
        translation('Curves over numbers'))
    end if
    do i = 1, size(curves)
      lines(i) = composite_of('Fit of a curve^3', [curves(i)%name, &
        number_string(curves(i)%r_squared, 4), string_of('R²')])
    end do
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      list_of(one_a_line, lines))
    ! A list of its own: compilers hand components of an array on at the wrong stride.
    call set_chart_description(plot%chart, composite_of('Chart description^1', &
      [list_of(commas, [curves%name])]))
    call end_chart(plot%chart)
  end subroutine

end program
