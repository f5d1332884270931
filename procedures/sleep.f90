! Does one drug lengthen the sleep of patients more than another?
!
! usage: sleep [data set]
!
! Each patient took both drugs. Draws the hours with either drug, joined for each patient, and
! their differences, the largest first, with the mean difference and its confidence limits
! (Student's test of paired values). The data set is a data package or a CSV file with these
! columns; data/sleep below the working directory when none is named.
program sleep
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: require
  use chartxml
  use drawings
  use korva
  use least_squares, only: mean
  use number_cases
  use student_t, only: quantile, tail_probability
  implicit none

  character(*), parameter :: procedure_name = 'sleep'
  real(dp), parameter :: confidence = 0.95_dp

  ! The variables of this run, in the order in which they are opened.
  integer, parameter :: patient = 1, drug(2) = [2, 3]

  !> The patients who took both drugs.
  type :: sample
    real(dp), allocatable :: patient(:), hours(:, :)  !< hours of a patient, with a drug
  end type

  !> The mean difference between the second drug and the first.
  type :: comparison
    real(dp) :: mean, lower, upper, t, probability
    integer :: degrees
  end type

  call stop_when_refused(.true.)
  call run

contains

  subroutine run
    type(data_set) :: observations
    type(sample) :: cases
    type(comparison) :: found
    real(dp), allocatable :: rows(:, :)

    call load_numbers(observations, procedure_name, procedure_name, &
      [character(7) :: 'patient', 'drug_1', 'drug_2'], rows)
    cases = sample(patient=rows(:, patient), hours=rows(:, drug))
    found = compared(cases%hours(:, 2) - cases%hours(:, 1))

    call draw_pairs(observations, cases)
    call draw_differences(observations, cases, found)
    call end_library
    call observations%close()
  end subroutine

  ! Estimation

  function compared(differences) result(found)
    real(dp), intent(in) :: differences(:)
    type(comparison) :: found
    real(dp) :: error

    found%degrees = size(differences) - 1
    call require(found%degrees > 0, 'no test: it needs two patients who took both drugs')
    found%mean = mean(differences)
    error = sqrt(sum((differences - found%mean)**2)/found%degrees/size(differences))
    call require(error > 0, 'no test: all differences are the same')
    found%t = found%mean/error
    found%probability = tail_probability(found%t, found%degrees)
    found%lower = found%mean - quantile(confidence, found%degrees)*error
    found%upper = found%mean + quantile(confidence, found%degrees)*error
  end function

  ! The charts

  !> A point for each patient and drug, and lines that join those of a patient.
  subroutine draw_pairs(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(drawing) :: plot
    integer :: patients, drugs, hours, lines, points

    plot = new_drawing(observations, procedure_name, 'Sleep with two drugs', &
      'Description of pairs')
    patients = patient_variable(plot)
    call add_aggregate(plot%chart, plot%source, categorical=.true., label=translation('Drug'), &
      handle=drugs)
    hours = computed(plot, 'Extra sleep (hours)', 1)
    call load_side_by_side(plot, patients, drugs, hours, cases%patient, drug, cases%hours)

    call draw_axes(plot, label_of_variable(patient), translation('Extra sleep (hours)'))
    call draw_level(plot, 0.0_dp, 'Sleep without a drug', 1, legend_index=2)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, patients, hours, &
      string_differenceline, lines)
    call add_statistic(plot%chart, lines, string_range)
    call add_xy_element(plot%chart, plot%data, 1, string_point, patients, hours, string_scatter, &
      points)
    call add_style_by_color(plot%chart, points, drugs)
    call add_legend_frame(plot%chart, plot%graph, points, 1, aesthetic=string_style_by)
    call end_chart(plot%chart)
  end subroutine

  !> A line for each patient from zero to the difference; the footnote has the test.
  subroutine draw_differences(observations, cases, found)
    type(data_set), intent(in) :: observations
    type(sample), intent(in) :: cases
    type(comparison), intent(in) :: found
    type(drawing) :: plot
    integer :: patients, difference, order, drops, points

    plot = new_drawing(observations, procedure_name, 'Difference between two drugs', &
      'Description of differences')
    patients = patient_variable(plot)
    difference = computed(plot, 'Difference (hours)', 1)
    call load(plot%chart, patients, cases%patient)
    call load(plot%chart, difference, cases%hours(:, 2) - cases%hours(:, 1))

    order = order_by(plot, patients, difference)
    call draw_axes(plot, label_of_variable(patient), translation('Difference (hours)'))
    call set_dimension_domain(plot%chart, get_dimension(plot%chart, plot%data, role_x), order)
    call draw_level(plot, found%mean, 'Mean difference', 1)
    call draw_level(plot, found%upper, 'Upper limit', 2)
    call draw_level(plot, found%lower, 'Lower limit', 3)
    call add_xy_element(plot%chart, plot%data, 1, string_interval, patients, difference, &
      string_dropdownline, drops)
    call add_xy_element(plot%chart, plot%data, 1, string_point, patients, difference, &
      string_scatter, points)
    call add_frame_with_label(plot%chart, plot%graph, string_footnote, 1, &
      composite_of('Paired test^6', [number_string(found%mean, 2), number_string(found%lower, 2), &
      number_string(found%upper, 2), number_string(found%t, 2), number_string(found%degrees, 0), &
      number_string(found%probability, 4)]))
    call end_chart(plot%chart)
  end subroutine

  !> Patients have numbers, but are no amounts.
  function patient_variable(plot) result(patients)
    type(drawing), intent(in) :: plot
    integer :: patients

    call add_variable(plot%chart, plot%source, patient, categorical=.true., handle=patients)
  end function

  !> The categories of a variable, those with the largest values of another first.
  function order_by(plot, categories, values) result(domain)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: categories, values
    integer :: domain, sort

    call add_domain(plot%chart, categorical=.true., handle=domain)
    call add_domain_reference(plot%chart, categories, domain)
    call add_sort(plot%chart, domain, handle=sort)
    call set_sort_descending(plot%chart, sort, .true.)
    call add_statistic_sort(plot%chart, sort, categories, values)
  end function

end program
