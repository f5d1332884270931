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
  use charts
  use chartxml
  use drawings, only: computed, draw_axes, drawing, new_drawing
  use korva
  use least_squares, only: mean
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

    call open_observations(observations, procedure_name, otherwise='data/sleep', &
      names=[character(7) :: 'patient', 'drug_1', 'drug_2'], numbers=1)
    call load_cases(observations, cases)
    found = compared(cases%hours(:, 2) - cases%hours(:, 1))

    call start_library(procedure_name, observations%dictionary)
    call draw_pairs(observations, cases)
    call draw_differences(observations, cases, found)
    call end_library
    call observations%close()
  end subroutine

  ! Data

  subroutine load_cases(observations, cases)
    type(data_set), intent(in) :: observations
    type(sample), intent(out) :: cases
    real(dp) :: cells(3)
    integer :: row, kept

    allocate (cases%patient(observations%row_count()), cases%hours(observations%row_count(), 2))
    kept = 0
    do row = 1, observations%row_count()
      call require(observations%read_row(row, cells), 'cannot read the data set')
      if (any(cells <= missing_value())) cycle
      kept = kept + 1
      cases%patient(kept) = cells(patient)
      cases%hours(kept, :) = cells(drug)
    end do
    cases%patient = cases%patient(:kept)
    cases%hours = cases%hours(:kept, :)
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
    integer :: patients, drugs, hours, lines, points, zero
    integer :: i, d

    plot = new_drawing(observations, procedure_name, 'Sleep with two drugs', &
      'Description of pairs')
    patients = patient_variable(plot)
    call add_aggregate(plot%chart, plot%source, categorical=.true., label=translation('Drug'), &
      handle=drugs)
    hours = computed(plot, 'Extra sleep (hours)', 1)
    do i = 1, size(cases%patient)
      do d = 1, size(drug)
        call add_row(plot%chart)
        call add_double_data_value(plot%chart, patients, cases%patient(i))
        call add_data_value(plot%chart, drugs, label_of_variable(drug(d)))
        call add_double_data_value(plot%chart, hours, cases%hours(i, d))
      end do
    end do

    call draw_axes(plot, label_of_variable(patient), translation('Extra sleep (hours)'))
    call add_y_reference_line(plot%chart, plot%data, real_string(0), guide_style=1, handle=zero)
    call explain(plot, zero, 'Sleep without a drug', 2)
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

  !> A line at a difference; the index is that of its style and of its legend.
  subroutine draw_level(plot, value, name, index)
    type(drawing), intent(in) :: plot
    real(dp), intent(in) :: value
    character(*), intent(in) :: name
    integer, intent(in) :: index
    integer :: line

    call add_y_reference_line(plot%chart, plot%data, real_string(value), guide_style=index, &
      handle=line)
    call explain(plot, line, name, index)
  end subroutine

  !> Names a line and gives it a legend.
  subroutine explain(plot, line, name, index)
    type(drawing), intent(in) :: plot
    integer, intent(in) :: line, index
    character(*), intent(in) :: name  !< a key of the string table

    call set_element_name(plot%chart, line, translation(name))
    call add_legend_frame_of(plot%chart, plot%graph, line, index)
  end subroutine

end program
