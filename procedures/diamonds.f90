! What does a diamond cost?
!
! usage: diamonds [data set]
!
! Draws the prices of thousands of diamonds against their weights, counted in hexagons, and
! their mean price by color and clarity as a table of colors. The data set is a data package
! or a CSV file with these columns; data/diamonds below the working directory when none is
! named.
program diamonds
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  use number_cases
  implicit none

  character(*), parameter :: procedure_name = 'diamonds'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: carat = 1, color = 2, clarity = 3, price = 4

  type(data_set) :: observations
  real(dp), allocatable :: cases(:, :)

  call stop_when_refused(.true.)
  call load_numbers(observations, procedure_name, procedure_name, &
    [character(7) :: 'carat', 'color', 'clarity', 'price'], cases)
  call draw_hexagons
  call draw_table
  call end_library
  call observations%close()
  deallocate (cases)

contains

  subroutine draw_hexagons
    type(drawing) :: plot
    integer :: weights, prices, hexagons, legend, style

    plot = new_drawing(observations, procedure_name, 'Price and weight of diamonds', &
      'Description of hexagons')
    call add_variable(plot%chart, plot%source, carat, handle=weights)
    call add_variable(plot%chart, plot%source, price, handle=prices)
    call load(plot%chart, [weights, prices], cases(:, [carat, price]))
    call draw_axes(plot, label_of_variable(carat), label_of_variable(price))
    call add_binned_element(plot%chart, plot%data, string_of('polygon'), weights, prices, &
      style_string(string_scatter, 1), hexagons)
    call add_legend_frame(plot%chart, plot%graph, hexagons, 1, style=style, legend=legend)
    call add_label(plot%chart, legend, style, translation('Diamonds'))
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Number of diamonds^2', [number_string(size(cases, 1), 0), &
      number_string(mean(cases(:, price)), 0, format_dollar)]))
    call end_chart(plot%chart)
  end subroutine

  !> A cell for each color and clarity that occur together.
  subroutine draw_table
    type(drawing) :: plot
    integer :: colors, clarities, prices, cells
    integer :: c, k
    logical :: here(size(cases, 1))

    plot = new_drawing(observations, procedure_name, &
      'Mean price of diamonds by color and clarity', 'Description of the table')
    colors = categories(plot, color)
    clarities = categories(plot, clarity)
    prices = computed(plot, 'Mean price (dollars)', 0)
    call set_variable_format(plot%chart, prices, packed_format(format_dollar, 8, 0))
    do c = 1, nint(maxval(cases(:, color)))
      do k = 1, nint(maxval(cases(:, clarity)))
        here = nint(cases(:, color)) == c .and. nint(cases(:, clarity)) == k
        if (.not. any(here)) cycle
        call add_row(plot%chart)
        call add_double_data_value(plot%chart, colors, real(c, dp))
        call add_double_data_value(plot%chart, clarities, real(k, dp))
        call add_double_data_value(plot%chart, prices, mean(pack(cases(:, price), here)))
      end do
    end do

    call draw_axes(plot, label_of_variable(color), label_of_variable(clarity))
    call add_xy_element(plot%chart, plot%data, 1, string_tile, colors, clarities, &
      string_scatter, cells)
    call add_color(plot%chart, cells, prices)
    call draw_legend(plot, cells, translation('Mean price (dollars)'), aesthetic=string_color)
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      translation('About prices'))
    call end_chart(plot%chart)
  end subroutine

end program
