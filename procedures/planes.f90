! Do flipper length and bill depth together tell the body mass of penguins?
!
! usage: planes [data set]
!
! Draws the cases in three dimensions, inside a wire frame, and before three planes the
! observed body masses beside those of the least-squares plane. The data set is a data
! package or a CSV file with these columns; data/penguins below the working directory when
! none is named.
program planes
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use grouped_cases
  use korva
  use least_squares
  implicit none

  character(*), parameter :: procedure_name = 'planes'

  ! The variables of this run: the species, then the measures in the order of the axes
  ! x, y and z, on which they stand.
  integer(cx), parameter :: species = 1, measure(3) = [2_cx, 3_cx, 4_cx]
  integer, parameter :: flipper_length = 1, body_mass = 2, bill_depth = 3

  !> mass = b(1) + b(2)*flipper length + b(3)*bill depth
  type :: plane
    real(dp) :: b(3), r_squared
    real(dp), allocatable :: fitted(:)
  end type

  !> The chart and the nodes that several steps refer to.
  type :: drawing
    integer(cx) :: chart, source, graph, data
    integer(cx) :: species, measures(3)  !< variables
  end type

  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(drawing) :: first, second

    ! Both charts come first: as long as one is open, the library keeps the groups' names.
    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'flipper_length_mm', 'body_mass_g', &
      'bill_depth_mm'], numbers=2_cx)
    first = new_drawing(observations)
    second = new_drawing(observations)
    call load_sample(observations, size(measure), cases)

    call draw_cases(first, cases)
    call draw_plane(second, cases, fit(cases%values))
    call require(cx_terminate() >= 0, 'cannot end the chart library')
    call observations%close()
  end subroutine

  ! Estimation

  type(plane) function fit(values)
    real(dp), intent(in) :: values(:, :)
    real(dp) :: design(size(values, 1), 3), predictions(size(values, 1)), b(3)

    design(:, 1) = 1
    design(:, 2) = values(:, flipper_length)
    design(:, 3) = values(:, bill_depth)
    b = fitted_coefficients(design, values(:, body_mass))
    predictions = matmul(design, b)
    fit = plane(b, explained_share(values(:, body_mass), predictions), predictions)
  end function

  ! The charts

  !> The cases by species in a wire frame.
  subroutine draw_cases(plot, cases)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    integer(cx) :: points, legend, style
    integer :: i

    do i = 1, size(cases%group)
      call store_group(plot%chart, plot%source, plot%species, cases, i)
      call store_numbers(plot%chart, plot%source, plot%measures, cases%values(i, :))
    end do
    call make('the wire frame', cx_addxyzwireframe(plot%chart, plot%data))
    call draw_axes(plot)
    points = points_at(plot, plot%measures(body_mass), 1_cx)
    call make('the colors of the points', &
      cx_addstylebycolor(plot%chart, points, plot%species))
    call make('the legend', cx_addlegendframe(plot%chart, plot%graph, points, 1_cx, &
      word_style_by, ignored, style, legend))
    call title_axis(plot%chart, legend, style, variable_label(species))
    call write_text(plot%chart, plot%graph, word_title, translated('Three measures of penguins'))
    call send_chart(plot%chart, translated('Description of cases'))
  end subroutine

  !> Observed and fitted masses before three planes.
  subroutine draw_plane(plot, cases, mass)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(plane), intent(in) :: mass
    integer(cx) :: fitted
    integer :: i

    fitted = computed_variable(plot%chart, plot%source, translated('Fitted'), &
      display_format(plain_format, 8, 0))
    do i = 1, size(cases%group)
      call store_group(plot%chart, plot%source, plot%species, cases, i)
      call store_numbers(plot%chart, plot%source, [plot%measures, fitted], &
        [cases%values(i, :), mass%fitted(i)])
    end do
    call make('the planes', cx_addxyzbackplanes(plot%chart, plot%data))
    call draw_axes(plot)
    call explain(plot, points_at(plot, plot%measures(body_mass), 1_cx), 'Observed', 1_cx)
    call explain(plot, points_at(plot, fitted, 2_cx), 'Fitted', 2_cx)
    call write_text(plot%chart, plot%graph, word_title, &
      translated('Body mass by flipper length and bill depth'))
    call write_text(plot%chart, plot%graph, word_footnote, composed('Regression plane^7', &
      [number_text(mass%b(1), 0), number_text(mass%b(2), 2), number_text(mass%b(3), 2), &
      number_text(mass%r_squared, 3), number_text(real(size(cases%group), dp), 0), text('×'), &
      text('R²')]))
    call send_chart(plot%chart, translated('Description of plane'))
  end subroutine

  ! What the charts have in common

  type(drawing) function new_drawing(observations) result(plot)
    type(data_set), intent(in) :: observations
    integer :: m

    plot%chart = made('a chart', create_chart(observations%dictionary, procedure_name, &
      plot%source, plot%graph, plot%data))
    plot%species = declared_variable(plot%chart, plot%source, species, true)
    call make('the names of the species', cx_addrelabels(plot%chart, plot%species, species))
    plot%measures = [(declared_variable(plot%chart, plot%source, measure(m), false), &
      m=1, size(measure))]
  end function

  !> Body mass stands upright between the other two.
  subroutine draw_axes(plot)
    type(drawing), intent(in) :: plot
    integer(cx) :: role, style, axis, margin

    margin = made('a margin', text('5%'))
    do role = 1, size(measure)
      call make('an axis', cx_adddimensionaxis(plot%chart, plot%data, role, absent, false, &
        style, axis, margin, margin, absent, absent))
      call title_axis(plot%chart, axis, style, variable_label(measure(role)))
    end do
  end subroutine

  !> A point for each case, as high as `height` says.
  function points_at(plot, height, style) result(points)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: height, style
    integer(cx) :: points

    call make('the points', cx_addxyelementex(plot%chart, plot%data, style, word_point, &
      plot%measures(flipper_length), height, word_scatter, points))
    call make('the depth of the points', &
      cx_addz(plot%chart, points, plot%measures(bill_depth)))
  end function

  !> Names points and gives them a legend.
  subroutine explain(plot, points, name, index)
    type(drawing), intent(in) :: plot
    integer(cx), intent(in) :: points, index
    character(*), intent(in) :: name  !< a key of the string table
    integer(cx) :: legend, style

    call make('the name of the points', &
      cx_setelementname(plot%chart, points, made('a text', translated(name))))
    call make('a legend', cx_addlegendframe(plot%chart, plot%graph, points, index, absent, &
      ignored, style, legend))
  end subroutine

end program
