// One state for all calls. The variables are the chunk's arguments, bound to local names: quicker than globals.
#include "FormulaProgram.h"

#if defined(MEK_HAS_LUA)
#include <lua5.4/lua.hpp>

#include <limits>
#include <vector>

namespace
{
class LuaProgram : public FormulaProgram
{
public:
    LuaProgram() : m_pState(luaL_newstate())
    {
        for (const TypicalFormula& formula : kTypicalFormulas)
        {
            const PlainFormula plain = plainFormula(formula);
            const std::string step =
                plain.stepName.empty() ? "" : "local " + plain.stepName + "=" + plain.stepValue + " ";
            m_chunks.push_back("local " + plainNames(formula) + "=... " + step + "return " + plain.result);
        }
    }
    ~LuaProgram() override { lua_close(m_pState); }

    double evaluate(int index) override
    {
        const std::string& chunk = m_chunks[static_cast<std::size_t>(index)];
        const int numVariables = kTypicalFormulas[index].numVariables;
        double result = std::numeric_limits<double>::quiet_NaN();
        if (luaL_loadbuffer(m_pState, chunk.data(), chunk.size(), "formula") == LUA_OK)
        {
            for (int i = 0; i < numVariables; ++i)
                lua_pushnumber(m_pState, kTypicalValues[i]);
            if (lua_pcall(m_pState, numVariables, 1, 0) == LUA_OK)
                result = lua_tonumber(m_pState, -1);
        }
        lua_pop(m_pState, 1);
        return result;
    }

private:
    lua_State* m_pState;
    std::vector<std::string> m_chunks;
};
}

std::unique_ptr<FormulaProgram> makeLuaProgram()
{
    return std::make_unique<LuaProgram>();
}
#else
std::unique_ptr<FormulaProgram> makeLuaProgram()
{
    return nullptr;
}
#endif
