! How long do patients with advanced lung cancer live, and does it depend on their sex and on
! how well they feel?
!
! usage: lung [data set]
!
! Draws survival curves by the method of Kaplan and Meier, with censored cases and a log-rank
! test: by sex with 95% limits, and by performance status. The data set is a data package or
! a CSV file with these columns; data/lung below the working directory when none is named.
program lung
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts
  use chartxml
  use drawings
  use korva
  use number_cases
  use survival_curves
  implicit none

  character(*), parameter :: procedure_name = 'lung'

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: time = 1, status = 2, sex = 3, performance = 4

  !> Smaller groups are not drawn: the curve of one patient tells nothing.
  integer, parameter :: smallest_group = 10

  !> The cases of the groups that a chart compares; case i belongs to codes(group(i)).
  type :: sample
    real(dp), allocatable :: time(:)
    logical, allocatable :: dead(:)
    integer, allocatable :: group(:), codes(:)
    integer :: number  !< of the variable that makes the groups
  end type

  type(data_set) :: observations
  real(dp), allocatable :: rows(:, :)

  call stop_when_refused(.true.)
  call load_numbers(observations, procedure_name, procedure_name, &
    [character(6) :: 'time', 'status', 'sex', 'ecog'], rows, needed=status)
  call require(all(rows(:, time) >= 0), 'a time is below zero')
  call draw('Survival with advanced lung cancer by sex', &
    'Description of curves by sex', grouped(sex), has_bands=.true.)
  call draw('Survival with advanced lung cancer by performance status', &
    'Description of curves by status', grouped(performance), has_bands=.false.)
  call end_library
  call observations%close()
  deallocate (rows)

contains

  ! Data

  !> The cases in the groups of a variable, without groups that are too small.
  type(sample) function grouped(number) result(cases)
    integer, intent(in) :: number
    integer, parameter :: most_codes = 9
    logical :: known(size(rows, 1))
    integer :: group(size(rows, 1)), code, i

    known = is_present(rows(:, number))
    associate (codes => nint(merge(rows(:, number), -1.0_dp, known)))
      cases%number = number
      allocate (cases%codes, source=pack([(code, code=0, most_codes)], &
        [(count(codes == code) >= smallest_group, code=0, most_codes)]))
      group = [(findloc(cases%codes, codes(i), dim=1), i=1, size(codes))]
    end associate
    call require(size(cases%codes) > 1, 'there are no two groups to compare')
    allocate (cases%group, source=pack(group, group > 0))
    cases%time = pack(rows(:, time), group > 0)
    cases%dead = pack(rows(:, status) > 0, group > 0)
  end function

  pure type(survival_curve) function curve_of_group(cases, g) result(curve)
    type(sample), intent(in) :: cases
    integer, intent(in) :: g

    curve = curve_of(pack(cases%time, cases%group == g), pack(cases%dead, cases%group == g))
  end function

  ! The chart

  subroutine draw(title, description, cases, has_bands)
    character(*), intent(in) :: title, description
    type(sample), intent(in) :: cases
    logical, intent(in) :: has_bands
    type(survival_curve) :: curves(size(cases%codes))
    type(drawing) :: plot
    integer :: times, shares, g

    ! One by one: an array constructor would not free what the curves hold.
    do g = 1, size(curves)
      curves(g) = curve_of_group(cases, g)
    end do
    plot = new_drawing(observations, procedure_name, title, description)
    times = computed(plot, 'Days from entry', 0)
    shares = computed(plot, 'Share alive', 2)
    call draw_axes(plot, translation('Days from entry'), translation('Share alive'), &
      domain_between(plot, 0.0_dp, maxval(cases%time), [times]), &
      domain_between(plot, 0.0_dp, 1.0_dp, [shares]))
    if (has_bands) call draw_bands(plot, cases, curves)
    call draw_curves(plot, cases, curves, times, shares)
    call draw_censored(plot, curves)
    call add_y_reference_line(plot%chart, plot%data, real_string(0.5_dp), 1)
    call write_texts_and_send(plot, cases, curves, has_bands)
  end subroutine

  subroutine draw_curves(plot, cases, curves, times, shares)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(survival_curve), intent(in) :: curves(:)
    integer, intent(in) :: times, shares
    integer :: groups, lines, first, g

    groups = categories(plot, cases%number)
    first = 1
    do g = 1, size(curves)
      associate (curve => curves(g))
        call load(plot%chart, groups, spread(cases%codes(g), 1, size(curve%time)), first)
        call load(plot%chart, times, curve%time, first)
        call load(plot%chart, shares, curve%share, first)
        first = first + size(curve%time)
      end associate
    end do
    call add_xy_element(plot%chart, plot%data, 1, string_line, times, shares, &
      string_survival_line, lines)
    call add_style_by_color(plot%chart, lines, groups)
    call draw_legend(plot, lines, label_of_variable(cases%number))
  end subroutine

  !> The limits are a source of their own: where nobody is left there are none.
  subroutine draw_bands(plot, cases, curves)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(survival_curve), intent(in) :: curves(:)
    integer :: source, groups, times, lower, upper, bands, first, g

    call add_source(plot%chart, handle=source)
    groups = categories(plot, cases%number, source)
    times = computed(plot, 'Days from entry', 0, source)
    lower = computed(plot, 'Lower limit', 2, source)
    upper = computed(plot, 'Upper limit', 2, source)
    first = 1
    do g = 1, size(curves)
      associate (curve => curves(g), rows => count(curves(g)%has_limits))
        call load(plot%chart, groups, spread(cases%codes(g), 1, rows), first)
        call load(plot%chart, times, pack(curve%time, curve%has_limits), first)
        call load(plot%chart, lower, pack(curve%lower, curve%has_limits), first)
        call load(plot%chart, upper, pack(curve%upper, curve%has_limits), first)
        first = first + rows
      end associate
    end do
    call add_xy_element(plot%chart, plot%data, 2, string_area, times, &
      range_of(plot, lower, upper), string_survival_line, bands)
    call add_style_by_color(plot%chart, bands, groups)
  end subroutine

  !> A mark on its curve for each time at which cases are censored.
  subroutine draw_censored(plot, curves)
    type(drawing), intent(in) :: plot
    type(survival_curve), intent(in) :: curves(:)
    integer :: source, times, shares, marks, first, g

    call add_source(plot%chart, handle=source)
    times = computed(plot, 'Days from entry', 0, source)
    shares = computed(plot, 'Share alive', 2, source)
    first = 1
    do g = 1, size(curves)
      associate (curve => curves(g))
        call load(plot%chart, times, pack(curve%time, curve%censored > 0), first)
        call load(plot%chart, shares, pack(curve%share, curve%censored > 0), first)
        first = first + count(curve%censored > 0)
      end associate
    end do
    if (first == 1) return
    call add_xy_element(plot%chart, plot%data, 1, string_point, times, shares, &
      string_survival_censored, marks)
  end subroutine

  ! Texts

  subroutine write_texts_and_send(plot, cases, curves, has_bands)
    type(drawing), intent(in) :: plot
    type(sample), intent(in) :: cases
    type(survival_curve), intent(in) :: curves(:)
    logical, intent(in) :: has_bands
    integer :: lines(size(curves) + 2)
    type(group_test) :: test
    integer :: g

    test = test_of_groups(cases%time, cases%dead, cases%group, size(curves))
    call add_frame_with_label(plot%chart, plot%graph, string_subtitle, 1, &
      composite_of('Log-rank test^3', [number_string(test%statistic, 2), &
      number_string(test%freedom, 0), number_string(test%probability, 4)]))
    lines = [(summary(cases, curves(g), g), g=1, size(curves)), &
      translation('About censored cases'), translation('About limits')]
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      list_of(one_a_line, lines(:size(curves) + merge(2, 1, has_bands))))
    call end_chart(plot%chart)
  end subroutine

  !> A group's name, cases, deaths, median and its limits.
  function summary(cases, curve, g) result(string)
    type(sample), intent(in) :: cases
    type(survival_curve), intent(in) :: curve
    integer, intent(in) :: g
    integer :: string

    string = composite_of('Median survival^6', [ &
      value_label(cases%number, [real(cases%codes(g), dp)]), &
      number_string(count(cases%group == g), 0), number_string(sum(curve%deaths), 0), &
      days(time_of_half(curve%time, curve%share)), days(time_of_half(curve%time, curve%lower)), &
      days(time_of_half(pack(curve%time, curve%has_limits), pack(curve%upper, curve%has_limits)))])
  end function

  !> A time, or that it was not reached.
  function days(reached) result(string)
    real(dp), intent(in) :: reached
    integer :: string

    if (reached < huge(reached)) then
      string = number_string(reached, 0)
    else
      string = translation('not reached')
    end if
  end function

end program
