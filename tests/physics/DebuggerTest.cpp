#include "testing/CapturedLog.h"
#include "testing/WorldFixture.h"

#include <boost/asio/ip/tcp.hpp>
#include <gtest/gtest.h>

#include <array>
#include <chrono>

namespace {

using boost::asio::ip::tcp;

TEST(VisualDebugger, IsSentTheWorldUntilItTakesNoMore)
{
    constexpr const char* kLost = "WARNING | The visual debugger at port 5425 takes no data; going on without it\n";
    const struct {
        const char* what;
        bool reads, hangsUp;
        const char* log;
    } rows[] = {
        {"reads", true, false, ""},
        {"never reads", false, false, kLost},
        {"hangs up", false, true, kLost},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        CapturedLog log;
        boost::asio::io_context context;
        tcp::acceptor acceptor(context, {boost::asio::ip::address_v4::loopback(), 5425});
        acceptor.set_option(tcp::acceptor::receive_buffer_size(4096)); // soon full
        acceptor.non_blocking(true);
        WorldFixture world;
        tcp::socket connection = acceptor.accept(); // throws unless the world has called
        acceptor.close();

        std::array<char, 4096> bytes;
        EXPECT_GT(connection.read_some(boost::asio::buffer(bytes)), 0u) << "no greeting";
        if (row.hangsUp) {
            connection.shutdown(tcp::socket::shutdown_send); // so that the game's next write would raise a signal
            connection.close();
        }
        world.ground();
        for (float x = -32; x < 32; x += 4) world.carAt({x, 5, 0});
        std::size_t received = 0;
        const auto start = std::chrono::steady_clock::now();
        world.run(5, [&] {
            while (row.reads && connection.available() > 0)
                received += connection.read_some(boost::asio::buffer(bytes));
        });
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
        EXPECT_EQ(received > 1'000'000, row.reads);
        EXPECT_EQ(log.text(), row.log);
    }
}

} // namespace
