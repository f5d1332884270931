! Least squares, as the procedures need it (LAPACK).
module least_squares
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: require
  implicit none
  private
  public :: fitted_coefficients, fitted_polynomial, explained_share, mean

  ! Solves least-squares problems of full rank.
  interface
    subroutine dgels(trans, m, n, nrhs, a, lda, b, ldb, work, lwork, info)
      import :: dp
      character, intent(in) :: trans
      integer, intent(in) :: m, n, nrhs, lda, ldb, lwork
      real(dp), intent(inout) :: a(lda, *), b(ldb, *)
      real(dp), intent(out) :: work(*)
      integer, intent(out) :: info
    end subroutine
  end interface

contains

  !> The coefficients, one for each column of the design, that fit y best, each case counted
  !> as often as its weight says.
  function fitted_coefficients(design, y, weights) result(coefficients)
    real(dp), intent(in) :: design(:, :), y(:)
    real(dp), intent(in), optional :: weights(:)
    real(dp) :: coefficients(size(design, 2))
    real(dp) :: a(size(y), size(design, 2)), b(size(y), 1), work(64*size(design, 2))
    integer :: cases, columns, j, info

    cases = size(y)
    columns = size(design, 2)
    call require(cases >= columns, 'the least-squares problem has too few cases')
    a = design
    b(:, 1) = y
    if (present(weights)) then
      b(:, 1) = sqrt(weights)*y
      do j = 1, columns
        a(:, j) = sqrt(weights)*design(:, j)
      end do
    end if
    call dgels('N', cases, columns, 1, a, cases, b, cases, work, size(work), info)
    call require(info == 0, 'the least-squares problem has no solution')
    coefficients = b(:columns, 1)
  end function

  !> The coefficients of the polynomial in x that fits y best, the constant first.
  function fitted_polynomial(x, y, degree) result(coefficients)
    real(dp), intent(in) :: x(:), y(:)
    integer, intent(in) :: degree
    real(dp) :: coefficients(0:degree)
    real(dp) :: design(size(x), 0:degree), center, scale
    integer :: power

    ! Around their mean and in units of their spread, powers of x hardly depend on each
    ! other; seconds since 1582 would make the problem numerically singular.
    center = mean(x)
    scale = sqrt(mean((x - center)**2))
    call require(scale > 0, 'no curve: it needs two different values of x')
    do power = 0, degree
      design(:, power) = ((x - center)/scale)**power
    end do
    coefficients = fitted_coefficients(design, y)
    coefficients = [(coefficients(power)/scale**power, power=0, degree)]
    coefficients = expanded(coefficients, center)
  end function

  !> The coefficients in x of a polynomial in x - center (Horner's scheme).
  pure function expanded(polynomial, center) result(coefficients)
    real(dp), intent(in) :: polynomial(0:), center
    real(dp) :: coefficients(0:size(polynomial) - 1)
    integer :: power, last

    last = ubound(coefficients, 1)
    coefficients = 0
    do power = last, 0, -1
      coefficients(1:last) = coefficients(0:last - 1) - center*coefficients(1:last)
      coefficients(0) = polynomial(power) - center*coefficients(0)
    end do
  end function

  !> R squared: the share of the variance of y that the predictions explain.
  pure real(dp) function explained_share(y, predictions)
    real(dp), intent(in) :: y(:), predictions(:)

    explained_share = 1 - sum((y - predictions)**2)/sum((y - mean(y))**2)
  end function

  pure real(dp) function mean(values)
    real(dp), intent(in) :: values(:)

    mean = sum(values)/size(values)
  end function

end module
