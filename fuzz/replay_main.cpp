// Runs the fuzz target once on every file named on the command line or lying in
// a folder named there, for compilers without libFuzzer and for regression runs.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

bool replay(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return false;
    }
    const std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(file)),
                                     std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    int replayed = 0;
    bool ok = true;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path argument(argv[i]);
        std::error_code error;
        if (!std::filesystem::is_directory(argument, error)) {
            ok = replay(argument) && ok;
            ++replayed;
            continue;
        }
        for (const auto &entry : std::filesystem::directory_iterator(argument, error)) {
            if (entry.is_regular_file()) {
                ok = replay(entry.path()) && ok;
                ++replayed;
            }
        }
        if (error) {
            std::fprintf(stderr, "cannot list %s: %s\n", argv[i], error.message().c_str());
            ok = false;
        }
    }
    std::printf("%d inputs replayed\n", replayed);
    // An empty run means a wrong path, not a clean parser.
    return ok && replayed > 0 ? 0 : 1;
}
