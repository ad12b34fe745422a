#pragma once
// A folder of one test, gone with it.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace lirmeto::prova {

class CartellaProvvisoria {
public:
  CartellaProvvisoria() {
    std::random_device caso;
    do radice_ = std::filesystem::temp_directory_path() / ("lirmeto." + std::to_string(caso()));
    while (!std::filesystem::create_directory(radice_));
    radice_ = std::filesystem::canonical(radice_);
  }
  CartellaProvvisoria(const CartellaProvvisoria&) = delete;
  CartellaProvvisoria& operator=(const CartellaProvvisoria&) = delete;
  ~CartellaProvvisoria() {
    std::error_code ignorato;
    std::filesystem::remove_all(radice_, ignorato);
  }

  [[nodiscard]] const std::filesystem::path& Radice() const { return radice_; }

  // Writes a file, its folders too; the answer is where it lies. Names are UTF-8.
  std::filesystem::path Metti(const char* nome, std::string_view byte) const { return Metti(std::string(nome), byte); }
  std::filesystem::path Metti(const std::string& nome, std::string_view byte) const {
    return Metti(std::filesystem::path(std::u8string(nome.begin(), nome.end())), byte);
  }
  std::filesystem::path Metti(const std::filesystem::path& nome, std::string_view byte) const {
    std::filesystem::create_directories((radice_ / nome).parent_path());
    std::ofstream file(radice_ / nome, std::ios::binary);
    file.write(byte.data(), static_cast<std::streamsize>(byte.size()));
    return radice_ / nome;
  }

  [[nodiscard]] static std::string Prendi(const std::filesystem::path& file) {
    std::ifstream aperto(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(aperto), {}};
  }

private:
  std::filesystem::path radice_;
};

} // namespace lirmeto::prova
