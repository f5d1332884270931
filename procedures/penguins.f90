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
  use grouped_cases
  use korva
  use least_squares
  implicit none

  character(*), parameter :: procedure_name = 'penguins'

  ! The variables of this run, in the order in which they are opened.
  integer(cx), parameter :: species = 1, flipper_length = 2, body_mass = 3

  !> The least-squares line y = intercept + slope*x.
  type :: line_fit
    real(dp) :: intercept, slope, r_squared
    integer :: cases
  end type

  !> The chart and the nodes that several steps refer to.
  type :: drawing
    integer(cx) :: chart, source, graph, data
    integer(cx) :: species, x, y, fitted  !< variables
    integer(cx) :: points                 !< the element that the legend explains
  end type

  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(line_fit) :: overall
    type(line_fit), allocatable :: within(:)
    type(drawing) :: plot
    integer :: g, i

    ! The chart comes first: with it the library learns of the data.
    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'flipper_length_mm', 'body_mass_g'], numbers=2_cx)
    plot = new_drawing(observations)
    call load_sample(observations, measures=2, cases=cases)

    overall = fit('all penguins', cases%values)
    allocate (within(size(cases%groups)))
    do g = 1, size(within)
      within(g) = fit(cases%groups(g)%text, &
        cases%values(pack([(i, i=1, size(cases%group))], cases%group == g), :))
    end do

    call declare_variables(plot)
    call fill_rows(plot, cases, within)
    call draw_axes(plot)
    call draw_elements(plot, overall)
    call draw_legend(plot)
    call write_texts_and_send(plot, cases, overall, within)
    call require(cx_terminate() >= 0, 'cannot end the chart library')
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

  type(drawing) function new_drawing(observations) result(plot)
    type(data_set), intent(in) :: observations

    plot%chart = made('a chart', create_chart(observations%dictionary, procedure_name, &
      plot%source, plot%graph, plot%data))
  end function

  subroutine declare_variables(plot)
    type(drawing), intent(inout) :: plot

    plot%species = declared_variable(plot%chart, plot%source, species, true)
    plot%x = declared_variable(plot%chart, plot%source, flipper_length, false)
    plot%y = declared_variable(plot%chart, plot%source, body_mass, false)
    plot%fitted = computed_variable(plot%chart, plot%source, &
      translated('Fitted body mass (g)'), format=absent)
    call make('the names of the species', cx_addrelabels(plot%chart, plot%species, species))
  end subroutine

  subroutine fill_rows(plot, cases, within)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(line_fit), intent(in) :: within(:)
    integer :: i

    do i = 1, size(cases%group)
      call store_group(plot%chart, plot%source, plot%species, cases, i)
      call store_numbers(plot%chart, plot%source, [plot%x, plot%y, plot%fitted], &
        [cases%values(i, :), predicted(within(cases%group(i)), cases%values(i, 1))])
    end do
  end subroutine

  !> x and y with 5% of room at either end; a variable's label is its axis's title.
  subroutine draw_axes(plot)
    type(drawing), intent(in) :: plot
    integer(cx) :: x_style, x_axis, y_style, y_axis

    call make('the axes', cx_addxydimensionwithaxis(plot%chart, plot%data, absent, absent, &
      false, false, x_style, x_axis, y_style, y_axis))
    call title_axis(plot%chart, x_axis, x_style, variable_label(flipper_length))
    call title_axis(plot%chart, y_axis, y_style, variable_label(body_mass))
  end subroutine

  !> A point for each penguin, a line for each species and one over all.
  subroutine draw_elements(plot, overall)
    type(drawing), intent(inout) :: plot
    type(line_fit), intent(in) :: overall
    integer(cx) :: lines, overall_line

    call make('the points', cx_addxyelementex(plot%chart, plot%data, 1_cx, word_point, &
      plot%x, plot%y, word_scatter, plot%points))
    call make('the colors of the points', &
      cx_addstylebycolor(plot%chart, plot%points, plot%species))

    call make('the lines of the species', cx_addxyelementex(plot%chart, plot%data, 1_cx, &
      word_line, plot%x, plot%fitted, word_simple_line, lines))
    call make('the colors of the lines', &
      cx_addstylebycolor(plot%chart, lines, plot%species))

    overall_line = made('the overall line', cx_addyofxlinear(plot%chart, plot%data, 1_cx, &
      overall%intercept, overall%slope, false))
    call make('the name of the overall line', &
      cx_setelementname(plot%chart, overall_line, made('a text', translated('All penguins'))))
  end subroutine

  subroutine draw_legend(plot)
    type(drawing), intent(in) :: plot
    integer(cx) :: legend, style

    call make('the legend', cx_addlegendframe(plot%chart, plot%graph, plot%points, 1_cx, &
      word_style_by, ignored, style, legend))
    call title_axis(plot%chart, legend, style, variable_label(species))
  end subroutine

  ! Texts

  subroutine write_texts_and_send(plot, cases, overall, within)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(line_fit), intent(in) :: overall, within(:)
    integer(cx) :: lines(size(within))
    integer :: g

    call write_text(plot%chart, plot%graph, word_title, &
      translated('Body mass and flipper length of penguins'))
    call write_text(plot%chart, plot%graph, word_subtitle, &
      estimates(translated('All penguins'), overall))
    do g = 1, size(within)
      lines(g) = estimates(cases%groups(g)%name, within(g))
    end do
    call write_text(plot%chart, plot%graph, word_footnote, listed(one_a_line, lines))
    call send_chart(plot%chart, translated('Chart description'))
  end subroutine

  function estimates(name, line) result(string)
    integer(cx), intent(in) :: name
    type(line_fit), intent(in) :: line
    integer(cx) :: string

    string = composed('Regression line^7', [name, number_text(line%intercept, 0), &
      number_text(line%slope, 2), number_text(line%r_squared, 2), &
      number_text(real(line%cases, dp), 0), text('×'), text('R²')])
  end function

end program
