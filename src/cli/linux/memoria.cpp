// Large texts in huge pages.
//
// A libretto of 100 MB is read, listed and written as a few texts of that size. With pages of 4 KB most of the time of
// a run goes into the faults of touching them; with pages of 2 MB it does not. Small objects are allocated as ever.

#include <cstdlib>
#include <new>
#include <sys/mman.h>

namespace {

constexpr std::size_t Grande = std::size_t{2} << 20U;
constexpr std::size_t PaginaGrande = std::size_t{2} << 20U;

void* PrendiGrande(std::size_t byte) {
  const std::size_t intere = (byte + PaginaGrande - 1) / PaginaGrande * PaginaGrande;
  void* blocco = std::aligned_alloc(PaginaGrande, intere);
  if (blocco != nullptr) madvise(blocco, intere, MADV_HUGEPAGE); // a hint: where it is not taken nothing changes
  return blocco;
}

} // namespace

void* operator new(std::size_t byte) {
  void* blocco = byte < Grande ? std::malloc(byte == 0 ? 1 : byte) : PrendiGrande(byte);
  if (blocco == nullptr) throw std::bad_alloc();
  return blocco;
}

void operator delete(void* blocco) noexcept {
  std::free(blocco);
}
void operator delete(void* blocco, std::size_t) noexcept {
  std::free(blocco);
}
