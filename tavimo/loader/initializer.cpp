// The load-time initialiser.
namespace {

[[gnu::constructor]] void initialize() {}

}  // namespace
