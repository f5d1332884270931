! Linear equations with a symmetric, positive definite matrix (LAPACK).
module positive_definite
  use, intrinsic :: iso_c_binding, only: dp => c_double
  use charts, only: require
  implicit none
  private
  public :: inverse_of

  interface
    subroutine dposv(uplo, n, nrhs, a, lda, b, ldb, info)
      import :: dp
      character, intent(in) :: uplo
      integer, intent(in) :: n, nrhs, lda, ldb
      real(dp), intent(inout) :: a(lda, *), b(ldb, *)
      integer, intent(out) :: info
    end subroutine
  end interface

contains

  !> The inverse of a matrix; `otherwise` says why there is none.
  function inverse_of(matrix, otherwise) result(inverse)
    real(dp), intent(in) :: matrix(:, :)
    character(*), intent(in) :: otherwise
    real(dp), dimension(size(matrix, 1), size(matrix, 1)) :: inverse, factor
    integer :: i, n, info

    n = size(matrix, 1)
    factor = matrix
    inverse = 0
    do i = 1, n
      inverse(i, i) = 1
    end do
    call dposv('U', n, n, factor, n, inverse, n, info)
    call require(info == 0, otherwise)
  end function

end module
