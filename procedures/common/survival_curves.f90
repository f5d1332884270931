! Survival with censored cases: the curve that Kaplan and Meier estimate, and whether the
! curves of several groups differ.
module survival_curves
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use positive_definite, only: inverse_of
  use probabilities, only: chi_squared_tail
  implicit none
  private
  public :: curve_of, time_of_half, test_of_groups

  !> The probability of 95% limits, in standard deviations.
  real(dp), parameter :: reach = 1.959963984540054_dp

  !> The share that survives each time at which a case ends, and zero. Limits go by the
  !> logarithm of the share; where nobody is left there are none.
  type, public :: survival_curve
    real(dp), allocatable :: time(:), share(:), lower(:), upper(:)
    integer, allocatable :: at_risk(:), deaths(:), censored(:)
    logical, allocatable :: has_limits(:)
  end type

  !> A test of groups with its degrees of freedom and the probability of a value as large.
  type, public :: group_test
    real(dp) :: statistic, probability
    integer :: freedom
  end type

contains

  !> The curve of cases that end at a time, dead or censored.
  pure type(survival_curve) function curve_of(times, dead) result(curve)
    real(dp), intent(in) :: times(:)
    logical, intent(in) :: dead(:)
    real(dp), allocatable :: error(:)
    integer :: i

    curve%time = distinct([0.0_dp, times])
    associate (t => curve%time)
      curve%at_risk = [(count(times >= t(i)), i=1, size(t))]
      curve%deaths = [(count(dead .and. same(times, t(i))), i=1, size(t))]
      curve%censored = [(count(.not. dead .and. same(times, t(i))), i=1, size(t))]
    end associate
    associate (n => curve%at_risk, d => curve%deaths)
      curve%share = [(product(1 - real(d(:i), dp)/n(:i)), i=1, size(n))]
      curve%has_limits = [(all(d(:i) < n(:i)), i=1, size(n))]
      ! Greenwood's error, of the logarithm.
      error = [(sqrt(sum(real(d(:i), dp)/n(:i)/max(n(:i) - d(:i), 1))), i=1, size(n))]
    end associate
    curve%lower = curve%share*exp(-reach*error)
    curve%upper = min(1.0_dp, curve%share*exp(reach*error))
  end function

  !> The first time at which no more than half is left; beyond all times when there is none.
  pure real(dp) function time_of_half(time, share) result(half)
    real(dp), intent(in) :: time(:), share(:)
    real(dp), parameter :: rounding = 1e-9_dp
    integer :: first

    half = huge(half)
    first = findloc(share <= 0.5_dp + rounding, .true., dim=1)
    if (first > 0) half = time(first)
  end function

  !> The log-rank test of groups 1 to `groups`: deaths against those that would be expected
  !> if at each time all cases at risk were alike.
  type(group_test) function test_of_groups(times, dead, group, groups) result(test)
    real(dp), intent(in) :: times(:)
    logical, intent(in) :: dead(:)
    integer, intent(in) :: group(:), groups
    real(dp) :: excess(groups - 1), variance(groups - 1, groups - 1), share(groups - 1)
    real(dp), allocatable :: ends(:)
    real(dp) :: deaths, at_risk
    integer :: i, g

    excess = 0
    variance = 0
    ends = distinct(pack(times, dead))
    do i = 1, size(ends)
      at_risk = count(times >= ends(i))
      deaths = count(dead .and. same(times, ends(i)))
      do g = 1, size(share)
        share(g) = count(group == g .and. times >= ends(i))/at_risk
        excess(g) = excess(g) - deaths*share(g) &
          + count(group == g .and. dead .and. same(times, ends(i)))
      end do
      if (at_risk < 2) cycle
      do g = 1, size(share)
        variance(:, g) = variance(:, g) &
          - deaths*(at_risk - deaths)/(at_risk - 1)*share*share(g)
        variance(g, g) = variance(g, g) &
          + deaths*(at_risk - deaths)/(at_risk - 1)*share(g)
      end do
    end do

    test%freedom = groups - 1
    test%statistic = dot_product(excess, matmul( &
      inverse_of(variance, 'the groups cannot be compared: one has no case at risk'), excess))
    test%probability = chi_squared_tail(test%statistic, test%freedom)
  end function

  elemental logical function same(a, b)
    real(dp), intent(in) :: a, b

    same = .not. (a < b .or. a > b)
  end function

  !> The values in ascending order, each once.
  pure function distinct(values)
    real(dp), intent(in) :: values(:)
    real(dp), allocatable :: distinct(:)
    real(dp) :: next

    allocate (distinct(0))
    if (size(values) == 0) return
    next = minval(values)
    do
      distinct = [distinct, next]
      if (.not. any(values > next)) return
      next = minval(values, mask=values > next)
    end do
  end function

end module
