// The growing text of a monitor: its limit, its clearing and what its observer hears.
#include "modbus/TextoMonitor.h"

#include <gtest/gtest.h>

namespace {

class Contador final : public ObservadorTexto {
public:
    void textoCambiado() override { ++llamadas; }

    int llamadas = 0;
};

TEST(MonitorText, linesFollowOneAnother) {
    TextoMonitor monitor;
    monitor.agregar("uno\r\n");
    monitor.agregar("dos\r\n");
    EXPECT_EQ(monitor.texto(), "uno\r\ndos\r\n");
    EXPECT_EQ(monitor.generacion(), 0U);
}

TEST(MonitorText, exactly60000CharactersAreKept) {
    TextoMonitor monitor;
    monitor.agregar(std::string(59999, 'a'));
    monitor.agregar("b");
    EXPECT_EQ(monitor.texto().size(), 60000U);
    EXPECT_EQ(monitor.generacion(), 0U);
}

TEST(MonitorText, at60001CharactersItIsEmptyAtOnceAndTheNextLineStartsAfresh) {
    TextoMonitor monitor;
    monitor.agregar(std::string(60000, 'a'));
    monitor.agregar("b");
    EXPECT_EQ(monitor.texto(), "");
    EXPECT_EQ(monitor.generacion(), 1U);
    monitor.agregar("c\r\n");
    EXPECT_EQ(monitor.texto(), "c\r\n");
}

TEST(MonitorText, lineLongerThanTheLimitLeavesNothing) {
    TextoMonitor monitor;
    monitor.agregar(std::string(70000, 'a'));
    EXPECT_EQ(monitor.texto(), "");
}

TEST(MonitorText, clearingEmptiesItAndStartsANewGeneration) {
    TextoMonitor monitor;
    monitor.agregar("uno\r\n");
    monitor.borrar();
    EXPECT_EQ(monitor.texto(), "");
    EXPECT_EQ(monitor.generacion(), 1U);
}

TEST(MonitorText, clearingAnEmptyOneIsHarmless) {
    TextoMonitor monitor;
    Contador contador;
    monitor.observar(&contador);
    monitor.borrar();
    EXPECT_EQ(monitor.generacion(), 0U);
    EXPECT_EQ(contador.llamadas, 0);
}

TEST(MonitorText, observerHearsOfTheFirstChangeAfterItHasLooked) {
    TextoMonitor monitor;
    Contador contador;
    monitor.observar(&contador);
    monitor.agregar("uno\r\n");
    monitor.agregar("dos\r\n");
    EXPECT_EQ(contador.llamadas, 1);
    monitor.visto();
    monitor.borrar();
    EXPECT_EQ(contador.llamadas, 2);
}

TEST(MonitorText, observerHearsOfTheOverflow) {
    TextoMonitor monitor(4);
    Contador contador;
    monitor.agregar("1234");
    monitor.observar(&contador);
    monitor.agregar("5");
    EXPECT_EQ(contador.llamadas, 1);
}

TEST(MonitorText, detachedObserverHearsNothing) {
    TextoMonitor monitor;
    Contador contador;
    monitor.observar(&contador);
    monitor.observar(nullptr);
    monitor.agregar("uno\r\n");
    EXPECT_EQ(contador.llamadas, 0);
}

} // namespace
