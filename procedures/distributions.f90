! How are the measures of penguins distributed?
!
! usage: distributions [data set]
!
! Draws flipper length as a histogram with a normal curve and as areas stacked by species,
! and body mass as box plots by species and sex. The data set is a data package or a CSV
! file with these columns; data/penguins below the working directory when none is named.
program distributions
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: one_a_line
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  use penguin_cases
  implicit none

  character(*), parameter :: procedure_name = 'distributions'

  type(data_set) :: observations
  type(penguin_sample) :: cases

  call stop_when_refused(.true.)
  call open_penguins(observations, procedure_name)
  call load_cases(observations, cases)
  call draw_histogram
  call draw_areas
  call draw_boxes
  call end_library
  call observations%close()

contains

  !> The distribution of flipper lengths: bins are as wide as twice the distance of the
  !> hinges over the cube root of the cases, to the whole millimeter.
  subroutine draw_histogram
    type(drawing) :: plot
    type(box) :: numbers
    integer :: flipper, bars, curve, statistic
    real(dp) :: width

    numbers = box_of(cases%flipper)
    width = max(1.0_dp, anint(2*(numbers%upper_hinge - numbers%lower_hinge) &
      /real(size(cases%flipper), dp)**(1.0_dp/3)))
    plot = new_drawing(observations, procedure_name, &
      'Flipper length of penguins', 'Description of the histogram')
    call add_variable(plot%chart, plot%source, flipper_number, handle=flipper)
    call load(plot%chart, flipper, cases%flipper)

    call draw_axes(plot, label_of_variable(flipper_number), translation('Penguins'))
    call add_element(plot%chart, plot%data, string_interval, style_string(string_histogram, 1), &
      handle=bars)
    call add_x(plot%chart, bars, flipper)
    call add_statistic(plot%chart, bars, string_histogram)
    call set_bin_width(plot%chart, width)
    call add_element(plot%chart, plot%data, string_line, style_string(string_normal, 1), &
      handle=curve)
    call add_x(plot%chart, curve, flipper)
    call add_statistic(plot%chart, curve, string_distribution, handle=statistic)
    call add_param(plot%chart, statistic, string_type, string_normal)
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Mean and deviation^3', [number_string(mean(cases%flipper), 1), &
      number_string(deviation(cases%flipper), 1), number_string(size(cases%flipper), 0)]))
    call end_chart(plot%chart)
  end subroutine

  !> How many penguins there are of each species in classes of flipper length.
  subroutine draw_areas
    type(drawing) :: plot
    real(dp), parameter :: class_width = 5
    integer :: species, flipper, number, areas
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
        call add_row(plot%chart)
        call add_data_value(plot%chart, species, trim(cases%species%levels(s)))
        call add_double_data_value(plot%chart, flipper, low + class_width/2)
        call add_double_data_value(plot%chart, number, count(cases%species%code == s .and. &
          cases%flipper >= low .and. cases%flipper < low + class_width))
      end do
    end do

    call draw_axes(plot, translation('Flipper length (mm), middle of its class'), &
      translation('Penguins'))
    call add_xy_element(plot%chart, plot%data, 1, string_area, flipper, number, &
      string_stackedarea, areas)
    call group(plot, areas, species, string_stack)
    call draw_legend(plot, areas, label_of_variable(species_number))
    call end_chart(plot%chart)
  end subroutine

  !> A box for each species and sex; the footnote has their numbers.
  subroutine draw_boxes
    type(drawing) :: plot
    type(box) :: numbers
    integer :: species, sex, mass, boxes
    integer, allocatable :: lines(:)
    integer :: i, k

    plot = new_drawing(observations, procedure_name, &
      'Body mass by species and sex', 'Description of boxes')
    species = factor_variable(plot, cases%species)
    sex = factor_variable(plot, cases%sex)
    call add_variable(plot%chart, plot%source, mass_number, handle=mass)
    call load(plot%chart, mass, cases%mass)
    call load(plot%chart, species, cases%species%levels(cases%species%code))
    call load(plot%chart, sex, cases%sex%levels(cases%sex%code))

    call draw_axes(plot, label_of_variable(species_number), label_of_variable(mass_number))
    call add_xy_element(plot%chart, plot%data, 1, string_schema, species, mass, string_boxplot, &
      boxes)
    call group(plot, boxes, sex, string_dodge)
    call draw_legend(plot, boxes, label_of_variable(sex_number))
    allocate (lines(0))
    do i = 1, size(cases%species%levels)
      do k = 1, size(cases%sex%levels)
        if (.not. any(cases%species%code == i .and. cases%sex%code == k)) cycle
        numbers = box_of(pack(cases%mass, cases%species%code == i .and. cases%sex%code == k))
        lines = [lines, composite_of('Five numbers^7', [cases%species%labels(i), &
          number_string(numbers%low, 0), number_string(numbers%lower_hinge, 0), &
          number_string(numbers%median, 0), number_string(numbers%upper_hinge, 0), &
          number_string(numbers%high, 0), cases%sex%labels(k)])]
      end do
    end do
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      list_of(one_a_line, lines))
    call end_chart(plot%chart)
  end subroutine

end program
