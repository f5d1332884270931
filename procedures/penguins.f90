! Are penguins with longer flippers heavier, and is it the same in every species?
!
! usage: penguins [data set]
!
! Draws body mass against flipper length, colored by species, with a least-squares
! line for each species and one over all penguins. The data set is a data package
! or a CSV file with these columns; data/penguins below the working directory when
! none is named.
program penguins
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings, only: draw_legend, drawing, new_drawing
  use grouped_cases
  use korva
  use least_squares
  implicit none

  character(*), parameter :: procedure_name = 'penguins'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: species = 1, flipper_length = 2, body_mass = 3

  !> The least-squares line y = intercept + slope*x.
  type :: line_fit
    real(dp) :: intercept, slope, r_squared
    integer :: cases
  end type

  !> The chart and the nodes that several steps refer to.
  type, extends(drawing) :: scatter
    integer :: species, x, y, fitted  !< variables
    integer :: points                 !< the element that the legend explains
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(line_fit) :: overall
    type(line_fit), allocatable :: within(:)
    type(scatter) :: plot
    integer :: g, i

    ! The chart comes first: with it the library learns of the data.
    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'flipper_length_mm', 'body_mass_g'], numbers=2)
    plot%drawing = new_drawing(observations, procedure_name)
    call load_sample(observations, measures=2, cases=cases)

    overall = fit('all penguins', cases%values)
    allocate (within(size(cases%groups)))
    do g = 1, size(within)
      within(g) = fit(cases%groups(g)%text, &
        cases%values(pack([(i, i=1, size(cases%group))], cases%group == g), :))
    end do

    call declare_variables(plot)
    call load_columns(plot, cases, within)
    call draw_axes(plot)
    call draw_elements(plot, overall)
    call draw_legend(plot%drawing, plot%points, label_of_variable(species))
    call write_texts_and_send(plot, cases, overall, within)
    call end_library
    call observations%close()
  end subroutine

  ! Estimation

  !> The line of cases of flipper length and body mass.
  function fit(name, values) result(line)
    character(*), intent(in) :: name
    real(dp), intent(in) :: values(:, :)
    type(line_fit) :: line
    real(dp) :: coefficients(2)

    associate (x => values(:, 1), y => values(:, 2))
      call require(maxval(x) > minval(x), &
        'no line for '//trim(name)//': it needs two different flipper lengths')
      coefficients = fitted_polynomial(x, y, degree=1)
      line%intercept = coefficients(1)
      line%slope = coefficients(2)
      line%cases = size(x)
      line%r_squared = explained_share(y, predicted(line, x))
    end associate
  end function

  elemental real(dp) function predicted(line, x)
    type(line_fit), intent(in) :: line
    real(dp), intent(in) :: x

    predicted = line%intercept + line%slope*x
  end function

  ! The chart

  subroutine declare_variables(plot)
    type(scatter), intent(inout) :: plot

    call add_variable(plot%chart, plot%source, species, categorical=.true., handle=plot%species)
    call add_variable(plot%chart, plot%source, flipper_length, handle=plot%x)
    call add_variable(plot%chart, plot%source, body_mass, handle=plot%y)
    call add_aggregate(plot%chart, plot%source, label=translation('Fitted body mass (g)'), &
      handle=plot%fitted)
    call add_relabels(plot%chart, plot%species, species)
  end subroutine

  subroutine load_columns(plot, cases, within)
    type(scatter), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(line_fit), intent(in) :: within(:)

    call load_groups(plot%chart, plot%species, cases)
    call load(plot%chart, [plot%x, plot%y], cases%values)
    call load(plot%chart, plot%fitted, predicted(within(cases%group), cases%values(:, 1)))
  end subroutine

  !> x and y with 5% of room at either end; a variable's label is its axis's title.
  subroutine draw_axes(plot)
    type(scatter), intent(in) :: plot
    integer :: x_style, x_axis, y_style, y_axis

    call add_xy_dimensions_with_axes(plot%chart, plot%data, x_style=x_style, x_axis=x_axis, &
      y_style=y_style, y_axis=y_axis)
    call add_label(plot%chart, x_axis, x_style, label_of_variable(flipper_length))
    call add_label(plot%chart, y_axis, y_style, label_of_variable(body_mass))
  end subroutine

  !> A point for each penguin, a line for each species and one over all.
  subroutine draw_elements(plot, overall)
    type(scatter), intent(inout) :: plot
    type(line_fit), intent(in) :: overall
    integer :: lines, overall_line

    call add_xy_element(plot%chart, plot%data, 1, string_point, plot%x, plot%y, string_scatter, &
      plot%points)
    call add_style_by_color(plot%chart, plot%points, plot%species)

    call add_xy_element(plot%chart, plot%data, 1, string_line, plot%x, plot%fitted, &
      string_simpleline, lines)
    call add_style_by_color(plot%chart, lines, plot%species)

    call add_linear_fit(plot%chart, plot%data, overall%intercept, overall%slope, guide_style=1, &
      handle=overall_line)
    call set_element_name(plot%chart, overall_line, translation('All penguins'))
  end subroutine

  ! Texts

  subroutine write_texts_and_send(plot, cases, overall, within)
    type(scatter), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(line_fit), intent(in) :: overall, within(:)
    integer :: lines(size(within))
    integer :: g

    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Body mass and flipper length of penguins'))
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      estimates(translation('All penguins'), overall))
    do g = 1, size(within)
      lines(g) = estimates(cases%groups(g)%name, within(g))
    end do
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      list_of(one_a_line, lines))
    call set_chart_description(plot%chart, translation('Chart description'))
    call end_chart(plot%chart)
  end subroutine

  function estimates(name, line) result(string)
    integer, intent(in) :: name
    type(line_fit), intent(in) :: line
    integer :: string

    string = composite_of('Regression line^7', [name, number_string(line%intercept, 0), &
      number_string(line%slope, 2), number_string(line%r_squared, 2), &
      number_string(line%cases, 0), string_of('×'), string_of('R²')])
  end function

end program
