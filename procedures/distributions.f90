! How are the measures of penguins distributed?
!
! usage: distributions [data set]
!
! Draws flipper length as a histogram with a normal curve and as areas stacked by species,
! and body mass as box plots by species and sex. The data set is a data package or a CSV
! file with these columns; data/penguins below the working directory when none is named.
program distributions
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings
  use korva
  use penguin_cases
  implicit none

  character(*), parameter :: procedure_name = 'distributions'

  type(data_set) :: observations
  type(sample) :: cases

  call open_penguins(observations, procedure_name)
  call load_cases(observations, cases)
  call draw_histogram
  call draw_areas
  call draw_boxes
  call require(cx_terminate() >= 0, 'cannot end the chart library')
  call observations%close()

contains

  !> The distribution of flipper lengths: bins are as wide as twice the distance of the
  !> hinges over the cube root of the cases, to the whole millimeter.
  subroutine draw_histogram
    type(drawing) :: plot
    type(box) :: numbers
    integer(cx) :: flipper, bars, curve, statistic
    real(dp) :: width

    numbers = box_of(cases%flipper)
    width = max(1.0_dp, anint(2*(numbers%upper_hinge - numbers%lower_hinge) &
      /real(size(cases%flipper), dp)**(1.0_dp/3)))
    plot = new_drawing(observations, procedure_name, &
      'Flipper length of penguins', 'Description of the histogram')
    flipper = variable(plot, flipper_number, false)
    call store_cases(plot, [flipper], reshape(cases%flipper, [size(cases%flipper), 1]))

    call draw_axes(plot, variable_label(flipper_number), translated('Penguins'))
    bars = part(plot, word_interval, word_histogram)
    call make('x', cx_addx(plot%chart, bars, flipper))
    call make('the histogram', cx_addstatistic(plot%chart, bars, word_histogram))
    call make('the width of its bins', cx_setbinwidth(plot%chart, width))
    curve = part(plot, word_line, word_normal)
    call make('x', cx_addx(plot%chart, curve, flipper))
    statistic = made('the curve', cx_addstatistic(plot%chart, curve, word_distribution))
    call make('its type', cx_addparam(plot%chart, statistic, word_type, word_normal))
    call write_text(plot%chart, plot%graph, word_subtitle, composed('Mean and deviation^3', &
      [number_text(mean(cases%flipper), 1), number_text(deviation(cases%flipper), 1), &
       number_text(real(size(cases%flipper), dp), 0)]))
    call send(plot)
  end subroutine

  !> How many penguins there are of each species in classes of flipper length.
  subroutine draw_areas
    type(drawing) :: plot
    real(dp), parameter :: class_width = 5
    integer(cx) :: species, flipper, number, areas
    real(dp) :: low
    integer :: first, last, class, s

    plot = new_drawing(observations, procedure_name, &
      'Flipper length and species', 'Description of areas')
    species = factor_variable(plot, cases%species)
    flipper = computed(plot, 'Flipper length (mm), middle of its class', 0)
    number = computed(plot, 'Penguins', 0)
    first = floor(minval(cases%flipper)/class_width)
    last = floor(maxval(cases%flipper)/class_width)
    do class = first - 1, last + 1
      low = class*class_width
      do s = 1, size(cases%species%levels)
        call begin_row(plot)
        call store_name(plot, species, cases%species%levels(s))
        call store_numbers(plot%chart, plot%source, [flipper, number], &
          [low + class_width/2, real(count(cases%species%code == s .and. &
            cases%flipper >= low .and. cases%flipper < low + class_width), dp)])
      end do
    end do

    call draw_axes(plot, translated('Flipper length (mm), middle of its class'), &
      translated('Penguins'))
    areas = element(plot, word_area, flipper, number, word_stacked_area)
    call group(plot, areas, species, word_stack)
    call draw_legend(plot, areas, species_number)
    call send(plot)
  end subroutine

  !> A box for each species and sex; the footnote has their numbers.
  subroutine draw_boxes
    type(drawing) :: plot
    type(box) :: numbers
    integer(cx) :: species, sex, mass, boxes
    integer(cx), allocatable :: lines(:)
    character(*), parameter :: one_a_line = '[%1:\n^1:]1'
    integer :: i, k

    plot = new_drawing(observations, procedure_name, &
      'Body mass by species and sex', 'Description of boxes')
    species = factor_variable(plot, cases%species)
    sex = factor_variable(plot, cases%sex)
    mass = variable(plot, mass_number, false)
    call store_cases(plot, [mass], reshape(cases%mass, [size(cases%mass), 1]), &
      [species, sex], [cases%species, cases%sex])

    call draw_axes(plot, variable_label(species_number), variable_label(mass_number))
    boxes = element(plot, word_schema, species, mass, word_box_plot)
    call group(plot, boxes, sex, word_dodge)
    call draw_legend(plot, boxes, sex_number)
    allocate (lines(0))
    do i = 1, size(cases%species%levels)
      do k = 1, size(cases%sex%levels)
        if (.not. any(cases%species%code == i .and. cases%sex%code == k)) cycle
        numbers = box_of(pack(cases%mass, cases%species%code == i .and. cases%sex%code == k))
        lines = [lines, composed('Five numbers^7', [cases%species%labels(i), &
          number_text(numbers%low, 0), number_text(numbers%lower_hinge, 0), &
          number_text(numbers%median, 0), number_text(numbers%upper_hinge, 0), &
          number_text(numbers%high, 0), cases%sex%labels(k)])]
      end do
    end do
    call write_text(plot%chart, plot%graph, word_footnote, listed(one_a_line, lines))
    call send(plot)
  end subroutine

end program
