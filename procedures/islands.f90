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
  use charts
  use chartxml
  use drawings
  use korva
  use penguin_cases
  implicit none

  character(*), parameter :: procedure_name = 'islands'

  type(data_set) :: observations
  type(sample) :: cases

  call open_penguins(observations, procedure_name)
  call load_cases(observations, cases)
  call draw_means
  call draw_shares
  call draw_panels
  call require(cx_terminate() >= 0, 'cannot end the chart library')
  call observations%close()

contains

  !> Bars of the mean of each island's species, with 1.96 standard errors to either side.
  subroutine draw_means
    type(drawing) :: plot
    integer(cx) :: island, species, height, lower, upper, range, bars, errors
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
        call begin_row(plot)
        call store_name(plot, island, cases%island%levels(i))
        call store_name(plot, species, cases%species%levels(s))
        call store_numbers(plot%chart, plot%source, [height, lower, upper], &
          [mean(values), mean(values) - error, mean(values) + error])
      end do
    end do

    call draw_axes(plot, variable_label(island_number), translated('Mean body mass (g)'))
    bars = element(plot, word_interval, island, height, word_clustered_bar)
    call group(plot, bars, species, word_dodge)
    errors = element(plot, word_interval, island, range, word_error_bar)
    call group(plot, errors, species, word_dodge)
    call draw_legend(plot, bars, species_number)
    call write_text(plot%chart, plot%graph, word_footnote, translated('About error bars'))
    call send(plot)
  end subroutine

  !> Bars of one length, divided by the share of each species.
  subroutine draw_shares
    type(drawing) :: plot
    integer(cx) :: island, species, share, bars
    integer :: i, s, all_of_island

    plot = new_drawing(observations, procedure_name, &
      'Species on each island', 'Description of shares')
    island = factor_variable(plot, cases%island)
    species = factor_variable(plot, cases%species)
    share = computed(plot, 'Share of penguins (%)', 0)
    do i = 1, size(cases%island%levels)
      all_of_island = count(cases%island%code == i)
      do s = 1, size(cases%species%levels)
        call begin_row(plot)
        call store_name(plot, island, cases%island%levels(i))
        call store_name(plot, species, cases%species%levels(s))
        call store_numbers(plot%chart, plot%source, [share], [100*real(count( &
          cases%island%code == i .and. cases%species%code == s), dp)/all_of_island])
      end do
    end do

    call draw_axes(plot, variable_label(island_number), translated('Share of penguins (%)'))
    bars = element(plot, word_interval, island, share, word_stacked_bar)
    call group(plot, bars, species, word_stack)
    call draw_legend(plot, bars, species_number)
    call send(plot)
  end subroutine

  !> A panel for each island and sex, all with the same scales.
  subroutine draw_panels
    type(drawing) :: plot
    integer(cx) :: species, island, sex, flipper, mass, points, facet, cross

    plot = new_drawing(observations, procedure_name, &
      'Body mass and flipper length by island and sex', 'Description of panels')
    species = factor_variable(plot, cases%species)
    island = factor_variable(plot, cases%island)
    sex = factor_variable(plot, cases%sex)
    flipper = variable(plot, flipper_number, false)
    mass = variable(plot, mass_number, false)
    call store_cases(plot, [flipper, mass], &
      reshape([cases%flipper, cases%mass], [size(cases%mass), 2]), &
      [species, island, sex], [cases%species, cases%island, cases%sex])

    facet = made('the panels', cx_addtablefacet(plot%chart, plot%data))
    cross = made('the panels', cx_addcross(plot%chart, facet))
    call make('the columns', cx_addfacetvariable(plot%chart, cross, int(role_x, cx), island))
    call make('the rows', cx_addfacetvariable(plot%chart, cross, int(role_y, cx), sex))
    call draw_axes(plot, variable_label(flipper_number), variable_label(mass_number))
    points = element(plot, word_point, flipper, mass, word_scatter)
    call make('the colors', cx_addstylebycolor(plot%chart, points, species))
    call draw_legend(plot, points, species_number)
    call send(plot)
  end subroutine

end program
