<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name></name>
    <message>
        <source>Sale summary</source>
        <translation>Resumo da venda</translation>
    </message>
    <message>
        <source>You have previously registered the order!</source>
        <translation>Você já registrou este pedido!</translation>
    </message>
    <message>
        <source>This order was sent to your cart, if you want to change the quantity, remember that you can do it in your shopping cart.</source>
        <translation>Este pedido foi enviado para o seu carrinho. Se quiser alterar a quantidade, lembre-se de que pode fazer isso no seu carrinho de compras.</translation>
    </message>
    <message>
        <source>Go to home screen</source>
        <translation>Ir para a tela inicial</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Lembre-se</translation>
    </message>
    <message>
        <source>You can continue collecting your sales until you reach the desired score to place your New Order.</source>
        <translation>Você pode continuar acumulando suas vendas até atingir a pontuação desejada para fazer seu Novo Pedido.</translation>
    </message>
    <message>
        <source>Go to cart</source>
        <translation>Ir para o carrinho</translation>
    </message>
    <message>
        <source>Go to cart button</source>
        <translation>Botão ir para o carrinho</translation>
    </message>
    <message>
        <source>We're sorry, but this information is no longer available.</source>
        <translation>Desculpe, mas esta informação não está mais disponível.</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Go back button</source>
        <translation>Botão voltar</translation>
    </message>
    <message>
        <source>Products unavailable by stock</source>
        <translation>Produtos indisponíveis por estoque</translation>
    </message>
    <message>
        <source>Products unavailable by quota</source>
        <translation>Produtos indisponíveis por cota</translation>
    </message>
    <message>
        <source>Products not found</source>
        <translation>Produtos não encontrados</translation>
    </message>
    <message>
        <source>Checkout</source>
        <translation>Envio para o carrinho</translation>
    </message>
    <message>
        <source>Whoops, we had a problem!</source>
        <translation>Ops, tivemos um problema!</translation>
    </message>
    <message>
        <source>We are experiencing instability in our systems. Please try again later.</source>
        <translation>Estamos passando por instabilidade em nossos sistemas. Por favor, tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Another consultant registered the order earlier!</source>
        <translation>Outra consultora registrou o pedido antes!</translation>
    </message>
    <message>
        <source>If you want to add the products to the shopping cart, ask your customer to access the interactive digital magazine again and create a new order.</source>
        <translation>Se quiser adicionar os produtos ao carrinho, peça à sua cliente que acesse novamente a revista digital interativa e crie um novo pedido.</translation>
    </message>
    <message>
        <source>Share Magazine</source>
        <translation>Compartilhar revista</translation>
    </message>
    <message>
        <source>Code: </source>
        <translation>Code: %n</translation>
    </message>
    <message numerus="yes">
        <source>points count</source>
        <translation>
            <numerusform>%n ponto</numerusform>
            <numerusform>%n pontos</numerusform>
        </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>This is taking longer than usual.</source>
        <translation>Está demorando mais do que o normal.</translation>
    </message>
</context>
</TS>
