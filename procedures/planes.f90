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
  use drawings, only: drawing, new_drawing
  use grouped_cases
  use korva
  use least_squares
  implicit none

  character(*), parameter :: procedure_name = 'planes'

  ! The variables of this run: the species, then the measures in the order of the axes
  ! x, y and z, on which they stand.
  integer, parameter :: species = 1, measure(3) = [2, 3, 4]
  integer, parameter :: flipper_length = 1, body_mass = 2, bill_depth = 3

  !> mass = b(1) + b(2)*flipper length + b(3)*bill depth
  type :: plane
    real(dp) :: b(3), r_squared
    real(dp), allocatable :: fitted(:)
  end type

  !> The chart and the nodes that several steps refer to.
  type, extends(drawing) :: penguin_plot
    integer :: species, measures(3)  !< variables
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(penguin_plot) :: first, second

    ! Both charts come first: as long as one is open, the library keeps the groups' names.
    call open_observations(observations, procedure_name, otherwise='data/penguins', &
      names=[character(17) :: 'species', 'flipper_length_mm', 'body_mass_g', 'bill_depth_mm'], &
      numbers=2)
    first = new_plot(observations)
    second = new_plot(observations)
    call load_sample(observations, size(measure), cases)

    call draw_cases(first, cases)
    call draw_plane(second, cases, fit(cases%values))
    call end_library
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
    type(penguin_plot), intent(in) :: plot
    type(sample), intent(in) :: cases
    integer :: points, legend, style

    call load_groups(plot%chart, plot%species, cases)
    call load(plot%chart, plot%measures, cases%values)
    call add_xyz_wireframe(plot%chart, plot%data)
    call draw_axes(plot)
    points = points_at(plot, plot%measures(body_mass), 1)
    call add_style_by_color(plot%chart, points, plot%species)
    call add_legend_frame(plot%chart, plot%graph, points, 1, aesthetic=string_style_by, &
      style=style, legend=legend)
    call add_label(plot%chart, legend, style, label_of_variable(species))
    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Three measures of penguins'))
    call set_chart_description(plot%chart, translation('Description of cases'))
    call end_chart(plot%chart)
  end subroutine

  !> Observed and fitted masses before three planes.
  subroutine draw_plane(plot, cases, mass)
    type(penguin_plot), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(plane), intent(in) :: mass
    integer :: fitted

    call add_aggregate(plot%chart, plot%source, label=translation('Fitted'), handle=fitted)
    call set_variable_format(plot%chart, fitted, packed_format(format_plain, 8, 0))
    call load_groups(plot%chart, plot%species, cases)
    call load(plot%chart, plot%measures, cases%values)
    call load(plot%chart, fitted, mass%fitted)
    call add_xyz_backplanes(plot%chart, plot%data)
    call draw_axes(plot)
    call explain(plot, points_at(plot, plot%measures(body_mass), 1), 'Observed', 1)
    call explain(plot, points_at(plot, fitted, 2), 'Fitted', 2)
    call add_frame_with_label(plot%chart, plot%graph, string_title, 1, &
      translation('Body mass by flipper length and bill depth'))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      composite_of('Regression plane^7', [number_string(mass%b(1), 0), &
      number_string(mass%b(2), 2), number_string(mass%b(3), 2), &
      number_string(mass%r_squared, 3), number_string(size(cases%group), 0), string_of('×'), &
      string_of('R²')]))
    call set_chart_description(plot%chart, translation('Description of plane'))
    call end_chart(plot%chart)
  end subroutine

  ! What the charts have in common

  type(penguin_plot) function new_plot(observations) result(plot)
    type(data_set), intent(in) :: observations
    integer :: m

    plot%drawing = new_drawing(observations, procedure_name)
    call add_variable(plot%chart, plot%source, species, categorical=.true., handle=plot%species)
    call add_relabels(plot%chart, plot%species, species)
    do m = 1, size(measure)
      call add_variable(plot%chart, plot%source, measure(m), handle=plot%measures(m))
    end do
  end function

  !> Body mass stands upright between the other two.
  subroutine draw_axes(plot)
    type(penguin_plot), intent(in) :: plot
    character(*), parameter :: margin = '5%'
    integer :: role, style, axis

    do role = 1, size(measure)
      call add_dimension_axis(plot%chart, plot%data, role, style=style, axis=axis, &
        upper_margin=margin, lower_margin=margin)
      call add_label(plot%chart, axis, style, label_of_variable(measure(role)))
    end do
  end subroutine

  !> A point for each case, as high as `height` says.
  function points_at(plot, height, style) result(points)
    type(penguin_plot), intent(in) :: plot
    integer, intent(in) :: height, style
    integer :: points

    call add_xy_element(plot%chart, plot%data, style, string_point, &
      plot%measures(flipper_length), height, string_scatter, points)
    call add_z(plot%chart, points, plot%measures(bill_depth))
  end function

  !> Names points and gives them a legend.
  subroutine explain(plot, points, name, index)
    type(penguin_plot), intent(in) :: plot
    integer, intent(in) :: points, index
    character(*), intent(in) :: name  !< a key of the string table

    call set_element_name(plot%chart, points, translation(name))
    call add_legend_frame(plot%chart, plot%graph, points, index)
  end subroutine

end program
