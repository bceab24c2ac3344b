// Readers seed their identifiers from the system's source of randomness, which takes longer than
// reading a short document. For the fuzzers the source is steady instead: a unit that is tried
// again takes the same way, too.

#include <random>

#ifdef __GLIBCXX__
namespace std {

void random_device::_M_init(const string& /*token*/) {}
void random_device::_M_fini() {}
random_device::result_type random_device::_M_getval() {
    return 4;
}

}  // namespace std
#endif
