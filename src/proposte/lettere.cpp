#include <proposte/lettere.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t Lettere = 26;
constexpr std::size_t ColonneNome = 3;

bool Maiuscola(char lettera) {
  return lettera >= 'A' && lettera <= 'Z';
}

} // namespace

std::string LetteraDerivata(std::size_t numero) {
  std::string lettere;
  for (; numero > 0; numero = (numero - 1) / Lettere)
    lettere.insert(lettere.begin(), static_cast<char>('a' + (numero - 1) % Lettere));
  return lettere;
}

std::string NomeTemporaneo(std::size_t numero) {
  if (numero == 0 || numero > MassimiTemporanei) return {};
  std::string nome(ColonneNome, 'A');
  std::size_t resto = numero - 1;
  for (std::size_t i = ColonneNome; i > 0; --i, resto /= Lettere)
    nome[i - 1] = static_cast<char>('A' + resto % Lettere);
  return nome;
}

std::size_t NumeroTemporaneo(std::string_view nome) {
  if (nome.size() < ColonneNome) return 0;
  constexpr int primaDellaA = 'A' - 1;
  const int terza = static_cast<unsigned char>(nome[2]) - primaDellaA;
  const bool inSerie = nome[0] == 'A' && Maiuscola(nome[1]) && Maiuscola(nome[2]);
  return static_cast<std::size_t>(std::max(terza, 0)) +
         (inSerie ? static_cast<std::size_t>(nome[1] - 'A') * Lettere : 0);
}

} // namespace lirmeto
