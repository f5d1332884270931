! Student's distribution, for tests and confidence limits of means.
module student_t
  use, intrinsic :: iso_c_binding, only: dp => c_double
  implicit none
  private
  public :: tail_probability, quantile

contains

  !> The probability of a value at least as far from zero, on either side.
  pure real(dp) function tail_probability(t, degrees) result(probability)
    real(dp), intent(in) :: t
    integer, intent(in) :: degrees

    probability = incomplete_beta(degrees/(degrees + t**2), degrees/2.0_dp, 0.5_dp)
  end function

  !> The positive value whose tail probability is 1 - confidence: 0.95 gives that of 95 %
  !> limits.
  pure real(dp) function quantile(confidence, degrees)
    real(dp), intent(in) :: confidence
    integer, intent(in) :: degrees
    real(dp) :: low, high

    low = 0
    high = 1
    do while (tail_probability(high, degrees) > 1 - confidence)
      high = 2*high
    end do
    do
      quantile = low + (high - low)/2
      if (quantile <= low .or. quantile >= high) return
      if (tail_probability(quantile, degrees) > 1 - confidence) then
        low = quantile
      else
        high = quantile
      end if
    end do
  end function

  !> The regularized incomplete beta function. Its fraction converges fast below the mean of
  !> the distribution; above, the two ends change places.
  pure recursive real(dp) function incomplete_beta(x, a, b) result(share)
    real(dp), intent(in) :: x, a, b

    if (x <= 0 .or. x >= 1) then
      share = merge(0.0_dp, 1.0_dp, x <= 0)
    else if (x > (a + 1)/(a + b + 2)) then
      share = 1 - incomplete_beta(1 - x, b, a)
    else
      share = x**a*(1 - x)**b*exp(log_gamma(a + b) - log_gamma(a) - log_gamma(b)) &
        /(a*beta_fraction(x, a, b))
    end if
  end function

  !> The continued fraction of the incomplete beta function, from its far end.
  pure real(dp) function beta_fraction(x, a, b) result(fraction)
    real(dp), intent(in) :: x, a, b
    integer, parameter :: depth = 200
    integer :: m

    fraction = 1
    do m = depth, 1, -1
      fraction = 1 + m*(b - m)*x/((a + 2*m - 1)*(a + 2*m))/fraction
      fraction = 1 - (a + m - 1)*(a + b + m - 1)*x/((a + 2*m - 2)*(a + 2*m - 1))/fraction
    end do
  end function

end module
