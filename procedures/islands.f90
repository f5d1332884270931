! Do the penguins of three islands differ, and in what?
!
! usage: islands [data set]
!
! Draws mean body mass by island and species with error bars, the share of the species on
! each island, and body mass against flipper length in a panel for each island and sex. The
! data set is a data package or a CSV file with these columns; data/penguins below the
! working directory when none is named.
program islands
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  use penguin_cases
  implicit none

  character(*), parameter :: procedure_name = 'islands'

  type(data_set) :: observations
  type(penguin_sample) :: cases

  call stop_when_refused(.true.)
  call open_penguins(observations, procedure_name)
  call load_cases(observations, cases)
  call draw_means
  call draw_shares
  call draw_panels
  call end_library
  call observations%close()

contains

  !> Bars of the mean of each island's species, with 1.96 standard errors to either side.
  subroutine draw_means
    type(drawing) :: plot
    integer :: island, species, height, lower, upper, range, bars, errors
    real(dp), allocatable :: values(:)
    real(dp) :: error
    integer :: i, s

    plot = new_drawing(observations, procedure_name, &
      'Mean body mass by island and species', 'Description of means')
    island = factor_variable(plot, cases%island)
    species = factor_variable(plot, cases%species)
    height = computed(plot, 'Mean body mass (g)', 0)
    lower = computed(plot, 'Lower limit', 0)
    upper = computed(plot, 'Upper limit', 0)
    range = range_of(plot, lower, upper)
    do i = 1, size(cases%island%levels)
      do s = 1, size(cases%species%levels)
        values = pack(cases%mass, cases%island%code == i .and. cases%species%code == s)
        if (size(values) < 2) cycle
        error = 1.96_dp*deviation(values)/sqrt(real(size(values), dp))
        call add_row(plot%chart)
        call add_data_value(plot%chart, island, trim(cases%island%levels(i)))
        call add_data_value(plot%chart, species, trim(cases%species%levels(s)))
        call add_double_data_value(plot%chart, height, mean(values))
        call add_double_data_value(plot%chart, lower, mean(values) - error)
        call add_double_data_value(plot%chart, upper, mean(values) + error)
      end do
    end do

    call draw_axes(plot, label_of_variable(island_number), translation('Mean body mass (g)'))
    call add_xy_element(plot%chart, plot%data, 1, string_interval, island, height, &
      string_clusteredbar, bars)
    call group(plot, bars, species, string_dodge)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, island, range, &
      string_errorbar, errors)
    call group(plot, errors, species, string_dodge)
    call draw_legend(plot, bars, label_of_variable(species_number))
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      translation('About error bars'))
    call end_chart(plot%chart)
  end subroutine

  !> Bars of one length, divided by the share of each species.
  subroutine draw_shares
    type(drawing) :: plot
    integer :: island, species, share, bars
    integer :: i, s, all_of_island

    plot = new_drawing(observations, procedure_name, &
      'Species on each island', 'Description of shares')
    island = factor_variable(plot, cases%island)
    species = factor_variable(plot, cases%species)
    share = computed(plot, 'Share of penguins (%)', 0)
    do i = 1, size(cases%island%levels)
      all_of_island = count(cases%island%code == i)
      do s = 1, size(cases%species%levels)
        call add_row(plot%chart)
        call add_data_value(plot%chart, island, trim(cases%island%levels(i)))
        call add_data_value(plot%chart, species, trim(cases%species%levels(s)))
        call add_double_data_value(plot%chart, share, 100*real(count( &
          cases%island%code == i .and. cases%species%code == s), dp)/all_of_island)
      end do
    end do

    call draw_axes(plot, label_of_variable(island_number), translation('Share of penguins (%)'))
    call add_xy_element(plot%chart, plot%data, 1, string_interval, island, share, &
      string_stackedbar, bars)
    call group(plot, bars, species, string_stack)
    call draw_legend(plot, bars, label_of_variable(species_number))
    call end_chart(plot%chart)
  end subroutine

  !> A panel for each island and sex, all with the same scales.
  subroutine draw_panels
    type(drawing) :: plot
    integer :: species, island, sex, flipper, mass, points, facet, cross

    plot = new_drawing(observations, procedure_name, &
      'Body mass and flipper length by island and sex', 'Description of panels')
    species = factor_variable(plot, cases%species)
    island = factor_variable(plot, cases%island)
    sex = factor_variable(plot, cases%sex)
    call add_variable(plot%chart, plot%source, flipper_number, handle=flipper)
    call add_variable(plot%chart, plot%source, mass_number, handle=mass)
    call load(plot%chart, flipper, cases%flipper)
    call load(plot%chart, mass, cases%mass)
    call load(plot%chart, species, cases%species%levels(cases%species%code))
    call load(plot%chart, island, cases%island%levels(cases%island%code))
    call load(plot%chart, sex, cases%sex%levels(cases%sex%code))

    call add_table_facet(plot%chart, plot%data, handle=facet)
    call add_cross(plot%chart, facet, handle=cross)
    call add_facet_variable(plot%chart, cross, role_x, island)
    call add_facet_variable(plot%chart, cross, role_y, sex)
    call draw_axes(plot, label_of_variable(flipper_number), label_of_variable(mass_number))
    call add_xy_element(plot%chart, plot%data, 1, string_point, flipper, mass, string_scatter, &
      points)
    call add_style_by_color(plot%chart, points, species)
    call draw_legend(plot, points, label_of_variable(species_number))
    call end_chart(plot%chart)
  end subroutine

end program
