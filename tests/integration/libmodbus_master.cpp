// libmodbus_master PORT COUNT: COUNT libmodbus masters connected to 127.0.0.1 at once. Each writes a register of its
// own, reads it back with both functions, and is refused a coil. Exit status 0 when everything was as expected.

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <modbus/modbus.h>
#include <vector>

namespace {

struct Close {
    void operator()(modbus_t* context) const {
        modbus_close(context);
        modbus_free(context);
    }
};
using Master = std::unique_ptr<modbus_t, Close>;

bool fail(const char* what, std::size_t master) {
    std::fprintf(stderr, "master %zu: %s: %s\n", master, what, modbus_strerror(errno));
    return false;
}

bool writeOwnRegister(modbus_t* master, std::size_t number) {
    // The station's write answers always carry unit 1, which libmodbus compares on no TCP connection.
    return modbus_write_register(master, static_cast<int>(number), static_cast<std::uint16_t>(1000 + number)) == 1 ||
           fail("write", number);
}

bool readItBack(modbus_t* master, std::size_t number) {
    std::uint16_t held[10] = {};
    std::uint16_t input[10] = {};
    if (modbus_read_registers(master, static_cast<int>(number), 10, held) != 10)
        return fail("read holding registers", number);
    if (modbus_read_input_registers(master, static_cast<int>(number), 10, input) != 10)
        return fail("read input registers", number);
    return (held[0] == 1000 + number && input[0] == held[0]) || fail("values", number);
}

bool isRefusedACoil(modbus_t* master, std::size_t number) {
    std::uint8_t coil = 0;
    return modbus_read_bits(master, 0, 1, &coil) == -1 || fail("a coil was read", number);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3)
        return 2;
    const int port = std::atoi(argv[1]);
    std::vector<Master> masters(std::strtoul(argv[2], nullptr, 10));
    bool good = true;
    for (std::size_t i = 0; i < masters.size(); ++i) {
        masters[i].reset(modbus_new_tcp("127.0.0.1", port));
        modbus_set_slave(masters[i].get(), 3);
        modbus_set_response_timeout(masters[i].get(), 20, 0);
        good = (modbus_connect(masters[i].get()) == 0 || fail("connect", i)) && good;
    }
    for (auto* step : {writeOwnRegister, readItBack, isRefusedACoil})
        for (std::size_t i = 0; i < masters.size() && good; ++i)
            good = step(masters[i].get(), i);
    return good ? 0 : 1;
}
